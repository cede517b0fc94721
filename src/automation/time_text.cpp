#include <charconv>
#include <vector>

#include "automation/case_folding.h"
#include "automation/date_text.h"
#include "automation/text.h"

namespace rangewerks::automation {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

enum class Half { None, Morning, Afternoon };

/// Takes "AM" or "PM" with the blanks before it off the end.
Half TakeHalf(std::string_view& text) {
  if (text.size() < 3 || FoldAscii(text.back()) != 'm') return Half::None;
  const char letter = FoldAscii(text[text.size() - 2]);
  if (letter != 'a' && letter != 'p') return Half::None;
  text = TrimRight(text.substr(0, text.size() - 2));
  return letter == 'a' ? Half::Morning : Half::Afternoon;
}

/// Takes a number of one or two digits off the front, or gives -1.
int TakeNumber(std::string_view& text) {
  std::size_t count = 0;
  int value = 0;
  while (count < text.size() && IsDigit(text[count])) value = value * 10 + (text[count++] - '0');
  if (count < 1 || count > 2) return -1;
  text.remove_prefix(count);
  return value;
}

bool TakeSeparator(std::string_view& text, const Locale& locale) {
  for (const std::string_view separator :
       {std::string_view(":"), std::string_view(locale.timeSeparator)}) {
    if (separator.empty() || !text.starts_with(separator)) continue;
    text.remove_prefix(separator.size());
    return true;
  }
  return false;
}

std::optional<int> HourOfDay(int hour, Half half) {
  if (half == Half::None) return hour <= 23 ? std::optional(hour) : std::nullopt;
  if (hour < 1 || hour > 12) return std::nullopt;
  return hour % 12 + (half == Half::Afternoon ? 12 : 0);
}

}  // namespace

std::optional<int> ReadTime(std::string_view text, const Locale& locale) {
  const Half half = TakeHalf(text);
  int parts[3] = {0, 0, 0};
  int count = 0;
  do {
    if (count == 3) return std::nullopt;
    const int part = TakeNumber(text);
    if (part < 0) return std::nullopt;
    parts[count++] = part;
  } while (TakeSeparator(text, locale));
  const bool isTime = count >= 2 || half != Half::None;  // a number alone is none
  if (!text.empty() || !isTime || parts[1] > 59 || parts[2] > 59) return std::nullopt;
  const auto hour = HourOfDay(parts[0], half);
  if (!hour) return std::nullopt;
  return (*hour * 60 + parts[1]) * 60 + parts[2];
}

}  // namespace rangewerks::automation
