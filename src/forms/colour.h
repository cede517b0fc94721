// Colours as forms and spreadsheets write them.
#pragma once

#include <cstdint>

namespace rangewerks::forms {

/// 0xBBGGRR, or one of the person's system colours: 0x80000000 and its index.
using Colour = std::int32_t;

namespace SystemColour {
constexpr Colour Numbered(std::uint32_t index) { return static_cast<Colour>(0x80000000U | index); }
inline constexpr Colour kWindow = Numbered(5);       ///< the ground of a text box
inline constexpr Colour kWindowText = Numbered(8);   ///< text on that
inline constexpr Colour kButtonFace = Numbered(15);  ///< the ground of a form
inline constexpr Colour kGrayText = Numbered(17);    ///< text of what can't be used
inline constexpr Colour kButtonText = Numbered(18);  ///< text on a form
}  // namespace SystemColour

/// A system colour's index, in the order of the platform; -1 for a colour given by its parts.
constexpr std::int32_t SystemColourIndex(Colour colour) {
  const auto bits = static_cast<std::uint32_t>(colour);
  return (bits & 0x80000000U) != 0 ? static_cast<std::int32_t>(bits & 0xFFU) : -1;
}

}  // namespace rangewerks::forms
