// Texts between the library's UTF-8 and UTF-16, which is what wide characters are on Windows.
#pragma once

#include <string>
#include <string_view>

#include "automation/utf8.h"

namespace rangewerks::automation {

/// A text of UTF-8 in UTF-16. A byte that belongs to no character becomes U+FFFD. `Unit` is a
/// character type of 16 bits.
template <class Unit>
std::basic_string<Unit> Utf16Of(std::string_view utf8) {
  static_assert(sizeof(Unit) == 2);
  std::basic_string<Unit> utf16;
  utf16.reserve(utf8.size());
  while (!utf8.empty()) {
    auto [code, size] = utf8::First(utf8, utf8::Surrogates::Kept);
    utf8.remove_prefix(size);
    if (code >= utf8::kInvalidByte) code = 0xFFFD;
    if (code >= 0x10000) {
      utf16.push_back(static_cast<Unit>(0xD800 + ((code - 0x10000) >> 10U)));
      code = 0xDC00 + ((code - 0x10000) & 0x3FFU);
    }
    utf16.push_back(static_cast<Unit>(code));
  }
  return utf16;
}

/// A text of UTF-16 in UTF-8. Half a surrogate pair, which texts of Windows may hold, is kept as
/// three bytes of its own and comes back unchanged from Utf16Of.
template <class Unit>
std::string Utf8Of(std::basic_string_view<Unit> utf16) {
  static_assert(sizeof(Unit) == 2);
  std::string utf8;
  utf8.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t code = static_cast<char16_t>(utf16[i]);
    if (code >= 0xD800 && code < 0xDC00 && i + 1 < utf16.size()) {
      const char32_t next = static_cast<char16_t>(utf16[i + 1]);
      if (next >= 0xDC00 && next < 0xE000) {
        code = 0x10000 + ((code - 0xD800) << 10U) + (next - 0xDC00);
        ++i;
      }
    }
    utf8::Append(utf8, code);
  }
  return utf8;
}

}  // namespace rangewerks::automation
