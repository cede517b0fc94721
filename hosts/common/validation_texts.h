// How long the texts of a validation rule may be, in characters. A workbook file can't hold more.
#pragma once

#include <cstddef>

namespace rangewerks::hosts {

inline constexpr std::size_t kLongestValidationTitle = 32;
inline constexpr std::size_t kLongestErrorMessage = 225;
inline constexpr std::size_t kLongestInputMessage = 255;

}  // namespace rangewerks::hosts
