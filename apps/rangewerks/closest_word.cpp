#include "apps/rangewerks/closest_word.h"

#include <algorithm>
#include <vector>

#include "automation/text.h"

namespace rangewerks::apps {

namespace {

/// How many letters to change, add, leave out or swap make one text of the other.
std::size_t Distance(std::string_view left, std::string_view right) {
  std::vector<std::size_t> beforeLast(right.size() + 1);
  std::vector<std::size_t> last(right.size() + 1);
  std::vector<std::size_t> current(right.size() + 1);
  for (std::size_t column = 0; column <= right.size(); ++column) last[column] = column;
  for (std::size_t row = 1; row <= left.size(); ++row) {
    current[0] = row;
    for (std::size_t column = 1; column <= right.size(); ++column) {
      const bool same = left[row - 1] == right[column - 1];
      current[column] = std::min(
          {last[column] + 1, current[column - 1] + 1, last[column - 1] + (same ? 0U : 1U)});
      if (row > 1 && column > 1 && left[row - 1] == right[column - 2] &&
          left[row - 2] == right[column - 1]) {
        current[column] = std::min(current[column], beforeLast[column - 2] + 1);
      }
    }
    std::swap(beforeLast, last);
    std::swap(last, current);
  }
  return last[right.size()];
}

}  // namespace

std::string ClosestWord(std::string_view word, std::span<const std::string_view> known) {
  const std::string folded = automation::FoldCase(word);
  std::string_view closest;
  std::size_t least = folded.size() / 3 + 1;
  for (const std::string_view each : known) {
    const std::size_t distance = Distance(folded, automation::FoldCase(each));
    if (distance < least) {
      least = distance;
      closest = each;
    }
  }
  return std::string(closest);
}

std::string DidYouMean(std::string_view word, std::span<const std::string_view> known) {
  const std::string closest = ClosestWord(word, known);
  return closest.empty() ? std::string() : "; did you mean " + closest + "?";
}

std::string OneOf(std::span<const std::string_view> words) {
  std::string text;
  for (std::size_t index = 0; index < words.size(); ++index) {
    if (index > 0) text += index + 1 == words.size() ? " or " : ", ";
    text += words[index];
  }
  return text;
}

}  // namespace rangewerks::apps
