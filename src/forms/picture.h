// The small pictures that forms show. They are drawn by the library itself, so that each desktop
// shows the same ones at any size.
#pragma once

#include <cstdint>
#include <vector>

namespace rangewerks::forms {

enum class Picture {
  None,
  Ok,       ///< a tick: accept
  Cancel,   ///< a cross: leave without a change
  Palette,  ///< three patches of colour: choose a colour
  Warning,  ///< an exclamation mark in a triangle
  Error,    ///< a cross in a disc
  Product,  ///< the library's own sign: a sheet with one marked range
};

/// A square of pixels, rows from the top, each 0xAARRGGBB, not premultiplied.
struct Bitmap {
  std::int32_t size = 0;
  std::vector<std::uint32_t> pixels;
};

/// Draws a picture with smooth edges on a transparent ground, `size` pixels wide and high, at least
/// 1. None is all transparent.
Bitmap Draw(Picture picture, std::int32_t size);

}  // namespace rangewerks::forms
