#include <algorithm>
#include <utility>

#include "systems/windows/locale_facts.h"

namespace rangewerks::systems {
namespace {

constexpr std::string_view kSymbols = "dMyghHmst";

bool IsAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// Writes a picture anew as a pattern, piece by piece.
class PatternWriter {
 public:
  /// The separator becomes the symbol.
  PatternWriter(std::string_view picture, std::string_view separator, char symbol)
      : picture_(picture),
        separator_(separator),
        separatorSymbol_(symbol),
        isCountedTo24_(picture.find('H') != std::string_view::npos) {}

  std::string Write() && {
    while (!picture_.empty()) {
      if (!separator_.empty() && picture_.starts_with(separator_)) {
        pattern_ += separatorSymbol_;
        picture_.remove_prefix(separator_.size());
      } else if (picture_.front() == '\'') {
        WriteQuoted();
      } else if (kSymbols.find(picture_.front()) != std::string_view::npos) {
        WriteSymbol();
      } else {
        WriteKept(Take());
      }
    }
    return std::move(pattern_);
  }

 private:
  char Take() {
    const char character = picture_.front();
    picture_.remove_prefix(1);
    return character;
  }

  void WriteKept(char character) {
    constexpr std::string_view kMeaningful = "/:\"\\";
    const bool hasMeaning =
        IsAsciiLetter(character) || kMeaningful.find(character) != std::string_view::npos;
    if (hasMeaning) pattern_ += '\\';
    pattern_ += character;
  }

  /// What stands in apostrophes is kept; two of them within are one.
  void WriteQuoted() {
    Take();
    while (!picture_.empty()) {
      const char character = Take();
      if (character == '\'') {
        if (!picture_.starts_with('\'')) return;
        Take();
      }
      WriteKept(character);
    }
  }

  void WriteSymbol() {
    const char symbol = picture_.front();
    const std::size_t width = std::min(picture_.find_first_not_of(symbol), picture_.size());
    picture_.remove_prefix(width);
    switch (symbol) {
      case 'd':
        return Repeat('d', width, 4);
      case 'M':
        return Repeat('m', width, 4);
      case 'y':
        return Repeat('y', width <= 2 ? 2 : 4, 4);
      case 'h':
      case 'H':
        return Repeat('h', width, 2);
      case 'm':
        return Repeat('n', width, 2);
      case 's':
        return Repeat('s', width, 2);
      case 't':
        if (!isCountedTo24_) pattern_ += "AM/PM";
        return;
      default:  // the era
        return;
    }
  }

  void Repeat(char symbol, std::size_t width, std::size_t most) {
    pattern_.append(std::min(width, most), symbol);
  }

  std::string_view picture_;
  std::string_view separator_;
  char separatorSymbol_;
  bool isCountedTo24_;
  std::string pattern_;
};

}  // namespace

std::string DatePatternOf(std::string_view picture, std::string_view separator) {
  return PatternWriter(picture, separator, '/').Write();
}

std::string TimePatternOf(std::string_view picture, std::string_view separator) {
  return PatternWriter(picture, separator, ':').Write();
}

}  // namespace rangewerks::systems
