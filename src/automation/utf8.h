// Characters of a UTF-8 text, one at a time.
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

/// What three bytes mean that encode half a surrogate pair. UTF-8 has no such character, but UTF-16
/// as Windows keeps it may hold one alone.
enum class Surrogates { Invalid, Kept };

/// The first character of a text that isn't empty. What is overlong, a surrogate (unless kept),
/// beyond U+10FFFF or cut off is no valid UTF-8.
Character First(std::string_view text, Surrogates surrogates = Surrogates::Invalid);

/// Appends a character, an invalid byte as the byte that it stands for.
void Append(std::string& text, char32_t code);

}  // namespace rangewerks::automation::utf8
