// The 56 colours that a workbook's cells can name by number.
#pragma once

#include <cstdint>
#include <optional>

namespace rangewerks::hosts {

/// Colours are 0xBBGGRR.
///
/// The colour of that number, 1 (black) to 56, or none.
std::optional<std::int32_t> PaletteColor(std::int32_t number);
/// The number of the colour that is nearest, and the lowest of several.
std::int32_t PaletteNumberOf(std::int32_t color);

}  // namespace rangewerks::hosts
