#include "automation/date_text.h"

#include "automation/calendar.h"
#include "automation/characters.h"

namespace rangewerks::automation {
namespace {

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsWhiteSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsWhiteSpace(text.back())) text.remove_suffix(1);
  return text;
}

std::optional<Date> ReadBoth(std::string_view day, std::string_view time, const Locale& locale) {
  const auto seconds = ReadTime(time, locale);
  if (!seconds) return std::nullopt;
  const auto dayNumber = ReadDay(day, locale);
  if (!dayNumber) return std::nullopt;
  return DateAt(*dayNumber, *seconds);
}

}  // namespace

std::optional<Date> ReadDate(std::string_view writtenText, const Locale& locale) {
  const std::string plain = WithCommonBlanks(writtenText);
  const std::string_view text = TrimBlanks(plain);
  if (const auto day = ReadDay(text, locale)) return DateAt(*day, 0);
  if (const auto seconds = ReadTime(text, locale)) return DateAt(0, *seconds);
  // Both, in either order: they part at one of the blanks.
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsWhiteSpace(text[i])) continue;
    const std::string_view front = TrimBlanks(text.substr(0, i));
    const std::string_view back = TrimBlanks(text.substr(i));
    if (const auto date = ReadBoth(front, back, locale)) return date;
    if (const auto date = ReadBoth(back, front, locale)) return date;
  }
  return std::nullopt;
}

}  // namespace rangewerks::automation
