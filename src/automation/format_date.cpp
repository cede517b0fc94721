#include <string>
#include <utility>

#include "automation/calendar.h"
#include "automation/characters.h"
#include "automation/conversions.h"
#include "automation/date_text.h"

namespace rangewerks::automation {
namespace {

constexpr std::string_view kHalfOfDay = "am/pm";

bool StartsWithHalfOfDay(std::string_view text) {
  if (text.size() < kHalfOfDay.size()) return false;
  for (std::size_t i = 0; i < kHalfOfDay.size(); ++i) {
    if (FoldAscii(text[i]) != kHalfOfDay[i]) return false;
  }
  return true;
}

/// Takes what a backslash or quotes keep off the front of the pattern.
std::string_view TakeKept(std::string_view& pattern) {
  const bool isQuoted = pattern.front() == '"';
  pattern.remove_prefix(1);
  const std::size_t end = isQuoted ? pattern.find('"') : 1;
  const std::string_view kept = pattern.substr(0, end);
  pattern.remove_prefix(kept.size());
  if (isQuoted && !pattern.empty()) pattern.remove_prefix(1);
  return kept;
}

bool HasHalfOfDay(std::string_view pattern) {
  while (!pattern.empty()) {
    if (StartsWithHalfOfDay(pattern)) return true;
    if (pattern.front() == '"' || pattern.front() == '\\') {
      TakeKept(pattern);
    } else {
      pattern.remove_prefix(1);
    }
  }
  return false;
}

/// Writes one date, symbol by symbol.
class DateWriter {
 public:
  DateWriter(const DateParts& parts, const Locale& locale, bool isHalved)
      : parts_(parts), locale_(locale), isHalved_(isHalved) {}

  std::string Write(std::string_view pattern) && {
    while (!pattern.empty()) {
      if (pattern.front() == '"' || pattern.front() == '\\') {
        text_ += TakeKept(pattern);
      } else if (StartsWithHalfOfDay(pattern)) {
        const bool isSmall = pattern.front() == 'a';
        text_ += parts_.hour < 12 ? (isSmall ? "am" : "AM") : (isSmall ? "pm" : "PM");
        pattern.remove_prefix(kHalfOfDay.size());
      } else {
        pattern.remove_prefix(WriteSymbol(pattern));
      }
    }
    return std::move(text_);
  }

 private:
  static std::size_t RunLength(std::string_view pattern, std::size_t most) {
    std::size_t count = 1;
    while (count < most && count < pattern.size() &&
           FoldAscii(pattern[count]) == FoldAscii(pattern.front())) {
      ++count;
    }
    return count;
  }

  /// Writes what stands first in the pattern and returns how much of the pattern that was.
  std::size_t WriteSymbol(std::string_view pattern) {
    const char symbol = FoldAscii(pattern.front());
    const bool isBehindHours = std::exchange(isBehindHours_, false);
    switch (symbol) {
      case 'd':
        return WriteDay(RunLength(pattern, 4));
      case 'm':
        return isBehindHours ? WriteNumber(parts_.minute, RunLength(pattern, 2))
                             : WriteMonth(RunLength(pattern, 4));
      case 'y':
        return WriteYear(pattern, RunLength(pattern, 4));
      case 'h':
        isBehindHours_ = true;
        return WriteNumber(isHalved_ ? (parts_.hour + 11) % 12 + 1 : parts_.hour,
                           RunLength(pattern, 2));
      case 'n':
        return WriteNumber(parts_.minute, RunLength(pattern, 2));
      case 's':
        return WriteNumber(parts_.second, RunLength(pattern, 2));
      default:
        isBehindHours_ = isBehindHours;  // separators don't come between hours and minutes
        return WriteOther(symbol, pattern.front());
    }
  }

  std::size_t WriteOther(char symbol, char written) {
    if (symbol == '/') {
      text_ += locale_.dateSeparator;
    } else if (symbol == ':') {
      text_ += locale_.timeSeparator;
    } else {
      text_ += written;
    }
    return 1;
  }

  std::size_t WriteNumber(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    if (digits.size() < width) text_.append(width - digits.size(), '0');
    text_ += digits;
    return width;
  }

  std::size_t WriteDay(std::size_t width) {
    if (width <= 2) return WriteNumber(parts_.day, width);
    const auto& names = width == 3 ? locale_.shortDayNames : locale_.dayNames;
    text_ += names.at(static_cast<std::size_t>(parts_.weekday));
    return width;
  }

  std::size_t WriteMonth(std::size_t width) {
    if (width <= 2) return WriteNumber(parts_.month, width);
    const auto& names = width == 3 ? locale_.shortMonthNames : locale_.monthNames;
    text_ += names.at(static_cast<std::size_t>(parts_.month) - 1);
    return width;
  }

  std::size_t WriteYear(std::string_view pattern, std::size_t width) {
    if (width == 4) return WriteNumber(parts_.year, 4);
    if (width >= 2) return WriteNumber(parts_.year % 100, 2);
    text_ += pattern.front();  // one y alone stands for itself
    return 1;
  }

  const DateParts& parts_;
  const Locale& locale_;
  bool isHalved_;
  bool isBehindHours_ = false;
  std::string text_;
};

std::string PartsAsText(const DateParts& parts, std::string_view pattern, const Locale& locale) {
  return DateWriter(parts, locale, HasHalfOfDay(pattern)).Write(pattern);
}

}  // namespace

std::string FormatDate(Date date, std::string_view pattern, const Locale& locale) {
  return PartsAsText(PartsOf(date), pattern, locale);
}

std::string FormatDateText(std::string_view text, std::string_view pattern, const Locale& locale) {
  if (pattern.empty()) return std::string(text);
  const auto date = ReadDate(text, locale);
  return date ? FormatDate(*date, pattern, locale) : std::string(text);
}

std::string IsoDate(Date date) {
  const DateParts parts = PartsOf(date);
  // The separators are kept, so that the locale has no say.
  return PartsAsText(parts, parts.IsMidnight() ? R"(yyyy\-mm\-dd)" : R"(yyyy\-mm\-dd\Thh\:nn\:ss)",
                     Locale());
}

}  // namespace rangewerks::automation
