// What somebody may have meant who wrote a word that isn't known.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace rangewerks::apps {

/// The known word with the fewest letters to change, add, leave out or swap with their neighbour,
/// case aside; empty when none is close: more than a third of the letters would be different.
std::string ClosestWord(std::string_view word, std::span<const std::string_view> known);

/// "; did you mean X?" for the closest word, or an empty text when none is close.
std::string DidYouMean(std::string_view word, std::span<const std::string_view> known);

/// The words as a list for a sentence: "a, b or c".
std::string OneOf(std::span<const std::string_view> words);

}  // namespace rangewerks::apps
