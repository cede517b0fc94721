#include "hosts/common/palette.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace rangewerks::hosts {
namespace {

/// In the order of their numbers. Those from 17 on are for charts, and repeat some.
constexpr std::array<std::int32_t, 56> kPalette{
    0x000000, 0xFFFFFF, 0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFF00FF, 0xFFFF00,  //  1 to 8
    0x000080, 0x008000, 0x800000, 0x008080, 0x800080, 0x808000, 0xC0C0C0, 0x808080,  //  9 to 16
    0xFF9999, 0x663399, 0xCCFFFF, 0xFFFFCC, 0x660066, 0x8080FF, 0xCC6600, 0xFFCCCC,  // 17 to 24
    0x800000, 0xFF00FF, 0x00FFFF, 0xFFFF00, 0x800080, 0x000080, 0x808000, 0xFF0000,  // 25 to 32
    0xFFCC00, 0xFFFFCC, 0xCCFFCC, 0x99FFFF, 0xFFCC99, 0xCC99FF, 0xFF99CC, 0x99CCFF,  // 33 to 40
    0xFF6633, 0xCCCC33, 0x00CC99, 0x00CCFF, 0x0099FF, 0x0066FF, 0x996666, 0x969696,  // 41 to 48
    0x663300, 0x669933, 0x003300, 0x003333, 0x003399, 0x663399, 0x993333, 0x333333,  // 49 to 56
};

std::int32_t SquaredDistance(std::int32_t left, std::int32_t right) {
  std::int32_t distance = 0;
  for (const int shift : {0, 8, 16}) {
    const std::int32_t difference = ((left >> shift) & 0xFF) - ((right >> shift) & 0xFF);
    distance += difference * difference;
  }
  return distance;
}

}  // namespace

std::optional<std::int32_t> ColorOfIndex(std::int32_t index) {
  if (index < 1 || index > static_cast<std::int32_t>(kPalette.size())) return std::nullopt;
  return kPalette.at(static_cast<std::size_t>(index - 1));
}

std::int32_t NearestColorIndex(std::int32_t color) {
  const auto* const nearest = std::ranges::min_element(
      kPalette, {}, [color](std::int32_t each) { return SquaredDistance(each, color); });
  return static_cast<std::int32_t>(nearest - kPalette.begin()) + 1;
}

}  // namespace rangewerks::hosts
