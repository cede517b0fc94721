#include "desktops/win32/pictures.h"

#include <cstddef>
#include <cstdint>

namespace rangewerks::desktops {

namespace {

std::uint32_t Premultiplied(std::uint32_t pixel) {
  const std::uint32_t opacity = pixel >> 24;
  std::uint32_t result = opacity << 24;
  for (int shift = 0; shift < 24; shift += 8) {
    const std::uint32_t part = (pixel >> shift) & 0xFFU;
    result |= ((part * opacity + 127) / 255) << shift;
  }
  return result;
}

/// A bitmap of this picture, whose pixels `convert` gives in Windows' form.
template <class Convert>
OwnedBitmap BitmapOf(const forms::Bitmap& picture, const Convert& convert) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = picture.size;
  info.bmiHeader.biHeight = -picture.size;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  OwnedBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (bitmap == nullptr) return nullptr;
  auto* pixels = static_cast<std::uint32_t*>(bits);
  for (const std::uint32_t pixel : picture.pixels) *pixels++ = convert(pixel);
  return bitmap;
}

}  // namespace

OwnedBitmap MakeBitmap(const forms::Bitmap& picture) { return BitmapOf(picture, Premultiplied); }

OwnedIcon MakeIcon(const forms::Bitmap& picture) {
  const OwnedBitmap colours = BitmapOf(picture, [](std::uint32_t pixel) { return pixel; });
  // Where the colours have an opacity of their own, the mask counts only for old drawing code.
  const std::size_t bytesPerRow = static_cast<std::size_t>((picture.size + 15) / 16) * 2;
  std::vector<std::uint8_t> hidden(bytesPerRow * static_cast<std::size_t>(picture.size));
  std::size_t place = 0;
  for (const std::uint32_t pixel : picture.pixels) {
    const std::size_t column = place % static_cast<std::size_t>(picture.size);
    const std::size_t row = place++ / static_cast<std::size_t>(picture.size);
    if (pixel >> 24 >= 128) continue;
    std::uint8_t& byte = hidden[row * bytesPerRow + column / 8];
    byte = static_cast<std::uint8_t>(byte | (0x80U >> (column % 8)));
  }
  const OwnedBitmap mask(CreateBitmap(picture.size, picture.size, 1, 1, hidden.data()));
  if (colours == nullptr || mask == nullptr) return nullptr;
  ICONINFO info{};
  info.fIcon = TRUE;
  info.hbmColor = colours.get();
  info.hbmMask = mask.get();
  return OwnedIcon(CreateIconIndirect(&info));
}

OwnedImageList MakeImageList(const std::vector<forms::Picture>& pictures, std::int32_t size) {
  OwnedImageList images(
      ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, static_cast<int>(pictures.size()), 0));
  if (images == nullptr) return nullptr;
  for (const forms::Picture picture : pictures) {
    const OwnedIcon icon = MakeIcon(forms::Draw(picture, size));
    if (icon == nullptr || ImageList_AddIcon(images.get(), icon.get()) < 0) return nullptr;
  }
  return images;
}

}  // namespace rangewerks::desktops
