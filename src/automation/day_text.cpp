#include <array>
#include <charconv>

#include "automation/calendar.h"
#include "automation/characters.h"
#include "automation/date_text.h"
#include "automation/text.h"

namespace rangewerks::automation {
namespace {

/// Letters of the names of months; bytes beyond ASCII belong to letters of other scripts.
bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

/// A number or the name of a month.
struct Part {
  int value = 0;   ///< the number, or the month from 1
  int digits = 0;  ///< 0 for a name

  bool IsName() const { return digits == 0; }
  bool IsLong() const { return digits >= 3; }  ///< nothing but a year has so many digits
  int Day() const { return IsName() || IsLong() ? 0 : value; }
  int Month() const { return IsLong() ? 0 : value; }
  int Year(const Locale& locale) const {
    if (IsLong()) return value;
    return locale.lastTwoDigitYear - (locale.lastTwoDigitYear - value) % 100;
  }
};

enum class Joint { None, Blank, Stop, Mark };  ///< a stop is a comma or dot that separates no dates

/// The parts of a text and what joins each to the next.
struct Parts {
  std::array<Part, 3> part;
  std::array<Joint, 3> joint;
  int count = 0;

  bool HasName() const {
    for (int i = 0; i < count; ++i) {
      if (part[static_cast<std::size_t>(i)].IsName()) return true;
    }
    return false;
  }
};

constexpr std::array<std::string_view, 12> kEnglishMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

/// The names of locales may end in the dot of an abbreviation, which the text may leave out.
bool IsNamed(std::string_view word, std::string_view name) {
  if (name.ends_with('.')) name.remove_suffix(1);
  return EqualText(word, name);
}

/// The month of that name in the locale or in English, from 1; 0 for any other word.
int MonthNamed(std::string_view word, const Locale& locale) {
  if (word.empty()) return 0;
  for (std::size_t i = 0; i < 12; ++i) {
    if (IsNamed(word, locale.monthNames[i]) || IsNamed(word, locale.shortMonthNames[i])) {
      return static_cast<int>(i) + 1;
    }
  }
  for (std::size_t i = 0; i < 12; ++i) {
    if (IsNamed(word, kEnglishMonths[i]) || IsNamed(word, kEnglishMonths[i].substr(0, 3))) {
      return static_cast<int>(i) + 1;
    }
  }
  return 0;
}

template <class Belongs>
std::string_view TakeWhile(std::string_view& text, Belongs belongs) {
  std::size_t count = 0;
  while (count < text.size() && belongs(text[count])) ++count;
  const std::string_view taken = text.substr(0, count);
  text.remove_prefix(count);
  return taken;
}

std::optional<Part> TakePart(std::string_view& text, const Locale& locale) {
  const std::string_view digits = TakeWhile(text, IsDigit);
  if (digits.size() > 4) return std::nullopt;
  Part part;
  if (!digits.empty()) {
    part.digits = static_cast<int>(digits.size());
    std::from_chars(digits.data(), digits.data() + digits.size(), part.value);
    return part;
  }
  part.value = MonthNamed(TakeWhile(text, IsLetter), locale);
  if (part.value == 0) return std::nullopt;
  if (text.starts_with('.')) text.remove_prefix(1);  // of an abbreviation
  return part;
}

/// At most one separator, and blanks around it.
Joint TakeJoint(std::string_view& text, const Locale& locale) {
  const bool hasBlank = !TakeWhile(text, IsWhiteSpace).empty();
  Joint joint = hasBlank ? Joint::Blank : Joint::None;
  const std::string_view separator = locale.dateSeparator;
  if (!separator.empty() && text.starts_with(separator)) {
    text.remove_prefix(separator.size());
    joint = Joint::Mark;
  } else if (text.starts_with('/') || text.starts_with('-') ||
             (text.starts_with('.') && separator.starts_with('.'))) {
    text.remove_prefix(1);
    joint = Joint::Mark;
  } else if (text.starts_with('.') || text.starts_with(',')) {
    text.remove_prefix(1);
    joint = Joint::Stop;
  }
  TakeWhile(text, IsWhiteSpace);
  return joint;
}

std::optional<Parts> TakeParts(std::string_view text, const Locale& locale) {
  Parts parts;
  while (!text.empty()) {
    if (parts.count == 3) return std::nullopt;
    const auto part = TakePart(text, locale);
    if (!part) return std::nullopt;
    const auto index = static_cast<std::size_t>(parts.count++);
    parts.part[index] = *part;
    if (text.empty()) return parts;
    parts.joint[index] = TakeJoint(text, locale);
  }
  return std::nullopt;  // nothing, or a separator at the end
}

/// Numbers between stops can as well be one number or a time, and two with a blank can be anything.
bool IsJoinedAsDate(const Parts& parts) {
  if (parts.HasName()) return true;
  for (int i = 0; i + 1 < parts.count; ++i) {
    const Joint joint = parts.joint[static_cast<std::size_t>(i)];
    if (joint == Joint::None || joint == Joint::Stop) return false;
    if (parts.count == 2 && joint != Joint::Mark) return false;
  }
  return true;
}

std::optional<int> Day(int year, const Part& month, const Part& day) {
  if (!IsDay(year, month.Month(), day.Day())) return std::nullopt;
  return DayNumber(year, month.Month(), day.Day());
}

/// A day and a month, in the order given or the other way round.
std::optional<int> DayEitherWay(int year, const Part& month, const Part& day) {
  const auto found = Day(year, month, day);
  return found || month.IsName() ? found : Day(year, day, month);
}

bool IsDayFirst(const Locale& locale) { return locale.dateOrder == DateOrder::DayFirst; }

std::optional<int> ReadThree(const Parts& parts, const Locale& locale) {
  const auto& [first, second, third] = parts.part;
  const bool isYearFirst = first.IsLong() || (!third.IsLong() && !first.IsName() &&
                                              locale.dateOrder == DateOrder::YearFirst);
  if (isYearFirst) return DayEitherWay(first.Year(locale), second, third);
  if (third.IsName()) return std::nullopt;
  if (IsDayFirst(locale)) return DayEitherWay(third.Year(locale), second, first);
  return DayEitherWay(third.Year(locale), first, second);
}

/// The first day of a month.
std::optional<int> ReadMonth(const Part& month, const Part& year, const Locale& locale) {
  if (!IsDay(year.Year(locale), month.Month(), 1)) return std::nullopt;
  return DayNumber(year.Year(locale), month.Month(), 1);
}

/// Whether a number can be a day of some month.
bool CanBeDay(const Part& part) { return part.Day() >= 1 && part.Day() <= 31; }

std::optional<int> ReadTwo(const Parts& parts, const Locale& locale) {
  const Part& first = parts.part[0];
  const Part& second = parts.part[1];
  if (first.IsName() && second.IsName()) return std::nullopt;
  const bool isMonthSecond = second.IsName() || first.IsLong();
  const Part& month = isMonthSecond ? second : first;
  const Part& other = isMonthSecond ? first : second;
  if (!other.IsName() && !CanBeDay(other)) return ReadMonth(month, other, locale);
  return IsDayFirst(locale) ? DayEitherWay(CurrentYear(), second, first)
                            : DayEitherWay(CurrentYear(), first, second);
}

}  // namespace

std::optional<int> ReadDay(std::string_view text, const Locale& locale) {
  if (locale.shortDate.ends_with('.') && text.ends_with('.')) text.remove_suffix(1);
  const auto parts = TakeParts(text, locale);
  if (!parts || parts->count < 2 || !IsJoinedAsDate(*parts)) return std::nullopt;
  return parts->count == 3 ? ReadThree(*parts, locale) : ReadTwo(*parts, locale);
}

}  // namespace rangewerks::automation
