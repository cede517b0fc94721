#include "hosts/workbook/file_words.h"

#include <string_view>

namespace rangewerks::hosts::workbook {

std::string ColorText(Color color) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "#";
  for (const int shift : {4, 0, 12, 8, 20, 16}) {  // red is in the low byte
    text += kDigits[static_cast<std::size_t>(color >> shift & 0xF)];
  }
  return text;
}

}  // namespace rangewerks::hosts::workbook
