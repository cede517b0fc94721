// Text by characters and without regard to case. Texts are UTF-8; a character is a code point, and
// a byte that is no valid UTF-8 counts as one character of its own, so nothing is ever lost.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace rangewerks::automation {

/// Removes blanks (U+0020 and nothing else: a tab stays) at the start, at the end, or at both ends.
std::string_view TrimLeft(std::string_view text);
std::string_view TrimRight(std::string_view text);
std::string_view Trim(std::string_view text);
/// True when nothing is left once the trailing blanks are removed: a text of blanks is blank.
inline bool IsBlank(std::string_view text) { return TrimRight(text).empty(); }

/// Number of characters.
std::size_t Length(std::string_view text);
/// The first `count` characters; the whole text when it has no more.
std::string_view Left(std::string_view text, std::size_t count);

/// The text with every letter in the one form that stands for both its cases (simple case folding
/// of one character to one character, over all scripts with case). For keys, not for display.
std::string FoldCase(std::string_view text);
/// Orders two texts without regard to case: negative, 0 or positive. Character by character:
/// punctuation before digits before letters, within these by the folded code point. Digits are 0 to
/// 9; beyond ASCII everything is a letter but the blocks of punctuation and symbols. A text that
/// another begins with comes before it.
int CompareText(std::string_view left, std::string_view right);
inline bool EqualText(std::string_view left, std::string_view right) {
  return CompareText(left, right) == 0;
}

/// For hash tables with texts as keys that are looked up without regard to case.
struct FoldedHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const noexcept;
};
struct FoldedEqual {
  using is_transparent = void;
  bool operator()(std::string_view left, std::string_view right) const noexcept {
    return EqualText(left, right);
  }
};

}  // namespace rangewerks::automation
