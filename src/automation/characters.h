// Tests of single ASCII characters that no locale can change. Private to this folder's sources.
#pragma once

namespace rangewerks::automation {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A blank, tab, line feed, vertical tab, form feed or carriage return.
constexpr bool IsWhiteSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

constexpr char FoldAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace rangewerks::automation
