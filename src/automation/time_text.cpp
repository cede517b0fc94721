#include <array>

#include "automation/characters.h"
#include "automation/date_text.h"
#include "automation/text.h"

namespace rangewerks::automation {
namespace {

enum class Half { None, Morning, Afternoon };

/// Takes "AM" or "PM" with the blanks before it off the end.
Half TakeHalf(std::string_view& text) {
  if (text.size() < 3 || FoldAscii(text.back()) != 'm') return Half::None;
  const char letter = FoldAscii(text[text.size() - 2]);
  if (letter != 'a' && letter != 'p') return Half::None;
  text = TrimRight(text.substr(0, text.size() - 2));
  return letter == 'a' ? Half::Morning : Half::Afternoon;
}

/// Takes a number of one or two digits off the front; a third digit is left over.
std::optional<int> TakeNumber(std::string_view& text) {
  if (text.empty() || !IsDigit(text.front())) return std::nullopt;
  int value = 0;
  for (int i = 0; i < 2 && !text.empty() && IsDigit(text.front()); ++i) {
    value = value * 10 + (text.front() - '0');
    text.remove_prefix(1);
  }
  return value;
}

/// At most one separator, and blanks around it.
bool TakeSeparator(std::string_view& text, const Locale& locale) {
  const std::string_view rest = TrimLeft(text);
  for (const std::string_view separator :
       {std::string_view(":"), std::string_view(locale.timeSeparator)}) {
    if (separator.empty() || !rest.starts_with(separator)) continue;
    text = TrimLeft(rest.substr(separator.size()));
    return true;
  }
  return false;
}

/// Hours from 13 are in the afternoon, whether or not the text says so again.
std::optional<int> HourOfDay(int hour, Half half) {
  if (hour > 23 || (hour > 12 && half == Half::Morning)) return std::nullopt;
  if (hour > 12 || half == Half::None) return hour;
  return hour % 12 + (half == Half::Afternoon ? 12 : 0);
}

}  // namespace

std::optional<int> ReadTime(std::string_view text, const Locale& locale) {
  const Half half = TakeHalf(text);
  std::array<int, 3> parts{};
  std::size_t count = 0;
  do {
    const auto part = TakeNumber(text);
    if (!part || count == parts.size()) return std::nullopt;
    parts.at(count++) = *part;
  } while (TakeSeparator(text, locale));
  const auto [hours, minutes, seconds] = parts;
  const bool isTime = count >= 2 || half != Half::None;  // a number alone is none
  if (!text.empty() || !isTime || minutes > 59 || seconds > 59) return std::nullopt;
  const auto hour = HourOfDay(hours, half);
  if (!hour) return std::nullopt;
  return (*hour * 60 + minutes) * 60 + seconds;
}

}  // namespace rangewerks::automation
