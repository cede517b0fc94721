// Numbers that the object model has for formats, beside those that the library itself uses.
#pragma once

#include <cstdint>

namespace rangewerks::hosts {

inline constexpr std::int32_t kCenter = -4108;       ///< of HorizontalAlignment
inline constexpr std::int32_t kMedium = -4138;       ///< of a line's Weight
inline constexpr std::int32_t kInsideVertical = 11;  ///< an index of Borders

}  // namespace rangewerks::hosts
