// Simple case folding of single characters. Private to this folder's sources.
#pragma once

namespace rangewerks::automation {

/// The one character that stands for both cases of a letter; any other character is itself. The
/// same in every locale: "I" always folds to "i".
char32_t FoldCharacter(char32_t code);

}  // namespace rangewerks::automation
