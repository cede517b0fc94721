// Characters of a UTF-8 text, one at a time. Private to this folder's sources.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace rangewerks::automation::utf8 {

/// Characters from here on stand for single bytes that are no valid UTF-8.
inline constexpr char32_t kInvalidByte = 0x110000;

struct Character {
  char32_t code;     ///< the code point, or kInvalidByte + the byte
  std::size_t size;  ///< bytes, 1 to 4
};

inline bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

/// The first character of a text that isn't empty. What is overlong, a surrogate, beyond U+10FFFF
/// or cut off is no valid UTF-8.
Character First(std::string_view text);

/// Appends a character, an invalid byte as the byte that it stands for.
void Append(std::string& text, char32_t code);

}  // namespace rangewerks::automation::utf8
