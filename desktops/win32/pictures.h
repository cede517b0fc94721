// The library's own pictures as Windows takes them. Private to this folder's sources.
#pragma once

#include <windows.h>
// The common controls need what comes before.
#include <commctrl.h>

#include <memory>
#include <type_traits>
#include <vector>

#include "forms/picture.h"

namespace rangewerks::desktops {

struct BitmapDeleter {
  void operator()(HBITMAP bitmap) const noexcept { DeleteObject(bitmap); }
};
struct IconDeleter {
  void operator()(HICON icon) const noexcept { DestroyIcon(icon); }
};
struct ImageListDeleter {
  void operator()(HIMAGELIST images) const noexcept { ImageList_Destroy(images); }
};

using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter>;
using OwnedIcon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDeleter>;
using OwnedImageList = std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, ImageListDeleter>;

/// With 32 bits a pixel, premultiplied, as AlphaBlend takes it. Null when Windows refuses.
OwnedBitmap MakeBitmap(const forms::Bitmap& picture);

/// Null when Windows refuses.
OwnedIcon MakeIcon(const forms::Bitmap& picture);

/// The pictures in this order, each `size` pixels wide and high. Null when Windows refuses.
OwnedImageList MakeImageList(const std::vector<forms::Picture>& pictures, std::int32_t size);

}  // namespace rangewerks::desktops
