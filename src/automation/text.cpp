#include "automation/text.h"

#include <array>
#include <cstdint>

#include "automation/case_folding.h"
#include "automation/characters.h"
#include "automation/utf8.h"

namespace rangewerks::automation {
namespace {

// What a character weighs in a comparison: its rank above the 24 bits of its folded code point.
constexpr std::uint32_t kPunctuation = 0U << 24U;
constexpr std::uint32_t kDigit = 1U << 24U;
constexpr std::uint32_t kLetter = 2U << 24U;

constexpr std::uint32_t AsciiWeight(char c) {
  const char folded = FoldAscii(c);
  std::uint32_t rank = kPunctuation;
  if (folded >= '0' && folded <= '9') rank = kDigit;
  if (folded >= 'a' && folded <= 'z') rank = kLetter;
  return rank | static_cast<unsigned char>(folded);
}

constexpr auto kAsciiWeights = [] {
  std::array<std::uint32_t, 0x80> weights{};
  for (std::size_t i = 0; i < weights.size(); ++i) weights[i] = AsciiWeight(static_cast<char>(i));
  return weights;
}();

/// Beyond ASCII everything counts as a letter but these blocks of punctuation and symbols.
bool IsPunctuation(char32_t code) {
  const bool latin = code <= 0xBF && code != 0xAA && code != 0xB5 && code != 0xBA;
  const bool signs = code == 0xD7 || code == 0xF7;
  const bool generalToArrows =
      code >= 0x2000 && code <= 0x2BFF && !(code >= 0x2070 && code <= 0x209F) &&
      !(code >= 0x2100 && code <= 0x218F) && !(code >= 0x2460 && code <= 0x24FF);
  const bool ideographic = code >= 0x3000 && code <= 0x303F;
  return latin || signs || generalToArrows || ideographic;
}

struct Weighed {
  std::uint32_t weight;
  std::size_t size;
};

Weighed FirstWeight(std::string_view text) {
  if (utf8::IsAscii(text.front())) {
    return {kAsciiWeights[static_cast<unsigned char>(text.front())], 1};
  }
  const utf8::Character character = utf8::First(text);
  const char32_t folded = FoldCharacter(character.code);
  if (folded < 0x80) return {kAsciiWeights[folded], character.size};  // the Kelvin sign is a k
  return {(IsPunctuation(folded) ? kPunctuation : kLetter) | folded, character.size};
}

}  // namespace

std::string_view TrimLeft(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

std::string_view TrimRight(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);  // npos + 1 is 0: nothing is left
}

std::string_view Trim(std::string_view text) { return TrimLeft(TrimRight(text)); }

std::size_t Length(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(utf8::First(text).size);
  return count;
}

std::string_view Left(std::string_view text, std::size_t count) {
  if (count >= text.size()) return text;
  std::size_t end = 0;
  for (; count > 0 && end < text.size(); --count) end += utf8::First(text.substr(end)).size;
  return text.substr(0, end);
}

std::string FoldCase(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  while (!text.empty()) {
    const utf8::Character character = utf8::First(text);
    utf8::Append(folded, FoldCharacter(character.code));
    text.remove_prefix(character.size);
  }
  return folded;
}

int CompareText(std::string_view left, std::string_view right) {
  while (!left.empty() && !right.empty()) {
    const Weighed first = FirstWeight(left);
    const Weighed second = FirstWeight(right);
    if (first.weight != second.weight) return first.weight < second.weight ? -1 : 1;
    left.remove_prefix(first.size);
    right.remove_prefix(second.size);
  }
  if (left.empty() == right.empty()) return 0;
  return left.empty() ? -1 : 1;
}

std::size_t FoldedHash::operator()(std::string_view text) const noexcept {
  // FNV-1a over folded characters, so that texts which compare equal have one hash.
  std::uint64_t hash = 0xCBF29CE484222325U;
  while (!text.empty()) {
    std::uint32_t folded = 0;
    if (utf8::IsAscii(text.front())) {
      folded = static_cast<unsigned char>(FoldAscii(text.front()));
      text.remove_prefix(1);
    } else {
      const utf8::Character character = utf8::First(text);
      folded = FoldCharacter(character.code);
      text.remove_prefix(character.size);
    }
    hash = (hash ^ folded) * 0x100000001B3U;
  }
  return static_cast<std::size_t>(hash ^ (hash >> 32U));
}

}  // namespace rangewerks::automation
