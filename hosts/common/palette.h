// The 56 colours that a workbook's cells can name by number.
#pragma once

#include <cstdint>
#include <optional>

namespace rangewerks::hosts {

/// Colours are 0xBBGGRR. An unfilled cell shows white.
inline constexpr std::int32_t kWhite = 0xFFFFFF;
inline constexpr std::int32_t kNoFill = -1;

/// The colour of that number, 1 (black) to 56, or none.
std::optional<std::int32_t> ColorOfIndex(std::int32_t index);
/// The number of the colour that is nearest, and the lowest of several.
std::int32_t NearestColorIndex(std::int32_t color);

}  // namespace rangewerks::hosts
