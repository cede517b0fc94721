#include "desktops/win32/pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace rangewerks::tests {
namespace {

using desktops::MakeBitmap;
using desktops::MakeIcon;
using desktops::MakeImageList;
using forms::Bitmap;
using forms::Picture;

std::vector<std::uint32_t> PixelsOf(HBITMAP bitmap) {
  DIBSECTION section{};
  EXPECT_EQ(GetObjectW(bitmap, sizeof(section), &section), static_cast<int>(sizeof(section)));
  const auto* pixels = static_cast<const std::uint32_t*>(section.dsBm.bmBits);
  return {pixels, pixels + section.dsBm.bmWidth * section.dsBm.bmHeight};
}

/// Of any of their parts: there is more than one way to round.
int LargestDifference(const std::vector<std::uint32_t>& left,
                      const std::vector<std::uint32_t>& right) {
  int largest = 0;
  for (std::size_t at = 0; at < left.size(); ++at) {
    for (int shift = 0; shift < 24; shift += 8) {
      const int difference = static_cast<int>((left[at] >> shift) & 0xFFU) -
                             static_cast<int>((right.at(at) >> shift) & 0xFFU);
      largest = std::max(largest, std::abs(difference));
    }
  }
  return largest;
}

/// What is seen of an icon on a ground of one colour, 0xRRGGBB.
class Ground {
 public:
  Ground(int size, std::uint32_t colour) : device_(CreateCompatibleDC(nullptr)) {
    const Bitmap plain{.size = size,
                       .pixels = std::vector<std::uint32_t>(static_cast<std::size_t>(size * size),
                                                            0xFF000000U | colour)};
    bitmap_ = MakeBitmap(plain);
    before_ = SelectObject(device_, bitmap_.get());
  }
  Ground(const Ground&) = delete;
  Ground& operator=(const Ground&) = delete;
  ~Ground() {
    SelectObject(device_, before_);
    DeleteDC(device_);
  }

  HDC Device() const { return device_; }
  std::vector<std::uint32_t> Colours() const {
    GdiFlush();
    std::vector<std::uint32_t> colours = PixelsOf(bitmap_.get());
    for (std::uint32_t& colour : colours) colour &= 0xFFFFFFU;
    return colours;
  }

 private:
  HDC device_;
  desktops::OwnedBitmap bitmap_;
  HGDIOBJ before_;
};

TEST(Win32Pictures, ABitmapHoldsColoursMultipliedByTheirOpacity) {
  const Bitmap picture{.size = 2, .pixels = {0xFFCF3030, 0x80FF8000, 0x00000000, 0x01FFFFFF}};
  EXPECT_EQ(PixelsOf(MakeBitmap(picture).get()),
            (std::vector<std::uint32_t>{0xFFCF3030, 0x80804000, 0x00000000, 0x01010101}));
}

TEST(Win32Pictures, AnIconCoversItsGroundByItsOpacity) {
  const Bitmap picture{.size = 2, .pixels = {0xFFCF3030, 0x80FF8000, 0x00000000, 0xFF2C9A47}};
  const auto icon = MakeIcon(picture);
  ASSERT_NE(icon, nullptr);
  const Ground ground(2, 0xFFFFFF);
  DrawIconEx(ground.Device(), 0, 0, icon.get(), 2, 2, 0, nullptr, DI_NORMAL);
  const auto colours = ground.Colours();
  EXPECT_EQ(colours[0], 0xCF3030U);
  EXPECT_NEAR(colours[1] & 0xFFU, 0x7F, 1);
  EXPECT_NEAR((colours[1] >> 8) & 0xFFU, 0xBF, 1);
  EXPECT_EQ(colours[1] >> 16, 0xFFU);
  EXPECT_EQ(colours[2], 0xFFFFFFU);
  EXPECT_EQ(colours[3], 0x2C9A47U);
}

TEST(Win32Pictures, AnIconHasTheSizeOfItsPicture) {
  const auto icon = MakeIcon(forms::Draw(Picture::Palette, 24));
  ICONINFO info{};
  ASSERT_NE(GetIconInfo(icon.get(), &info), 0);
  BITMAP colours{};
  GetObjectW(info.hbmColor, sizeof(colours), &colours);
  EXPECT_EQ(colours.bmWidth, 24);
  EXPECT_EQ(colours.bmHeight, 24);
  DeleteObject(info.hbmColor);
  DeleteObject(info.hbmMask);
}

TEST(Win32Pictures, AnImageListHoldsThePicturesInTheirOrder) {
  const std::vector<Picture> pictures{Picture::None, Picture::Warning, Picture::Error};
  const auto images = MakeImageList(pictures, 16);
  ASSERT_NE(images, nullptr);
  EXPECT_EQ(ImageList_GetImageCount(images.get()), 3);
  int width = 0;
  int height = 0;
  ImageList_GetIconSize(images.get(), &width, &height);
  EXPECT_EQ(width, 16);
  EXPECT_EQ(height, 16);
  for (int place = 0; place < 3; ++place) {
    const Ground shown(16, 0xFFFFFF);
    const Ground wanted(16, 0xFFFFFF);
    ImageList_Draw(images.get(), place, shown.Device(), 0, 0, ILD_TRANSPARENT);
    const auto icon = MakeIcon(forms::Draw(pictures[static_cast<std::size_t>(place)], 16));
    DrawIconEx(wanted.Device(), 0, 0, icon.get(), 16, 16, 0, nullptr, DI_NORMAL);
    EXPECT_LE(LargestDifference(shown.Colours(), wanted.Colours()), 1) << place;
  }
}

}  // namespace
}  // namespace rangewerks::tests
