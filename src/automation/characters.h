// Characters that no locale can change. Private to this folder's sources.
#pragma once

#include <string>
#include <string_view>

namespace rangewerks::automation {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A blank, tab, line feed, vertical tab, form feed or carriage return.
constexpr bool IsWhiteSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

constexpr char FoldAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The text with a common blank for each white space beyond ASCII, such as the no-break space that
/// stands between an amount and its currency symbol on a page that was copied from.
std::string WithCommonBlanks(std::string_view text);

}  // namespace rangewerks::automation
