// The texts of a validation rule, and how long each may be. A workbook file can't hold more.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace rangewerks::hosts {

/// A text by its member's name, and the most characters that it can have.
struct ValidationText {
  const char* member;
  std::size_t longest;
};
inline constexpr std::array<ValidationText, 4> kValidationTexts{
    {{"ErrorTitle", 32}, {"ErrorMessage", 225}, {"InputTitle", 32}, {"InputMessage", 255}}};

/// Why the text can't be that, as a sentence; empty when it can.
std::string FaultOfText(const ValidationText& text, const std::string& value);

}  // namespace rangewerks::hosts
