// Simple case folding of single characters. Private to this folder's sources.
#pragma once

namespace rangewerks::automation {

constexpr char FoldAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The one character that stands for both cases of a letter; any other character is itself. The
/// same in every locale: "I" always folds to "i".
char32_t FoldCharacter(char32_t code);

}  // namespace rangewerks::automation
