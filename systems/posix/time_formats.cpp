#include <array>
#include <vector>

#include "systems/posix/locale_facts.h"

namespace rangewerks::systems {
namespace {

using automation::DateOrder;
using automation::Locale;

/// One conversion of a strftime format and the text up to the next.
struct Conversion {
  char letter;
  bool isPadded;  ///< with a zero
  std::string_view behind;
};

constexpr std::string_view kModifiers = "EO-_0^#";

std::vector<Conversion> ConversionsOf(std::string_view format) {
  std::vector<Conversion> conversions;
  for (std::size_t at = format.find('%'); at != std::string_view::npos; at = format.find('%', at)) {
    Conversion found{'\0', true, {}};
    for (++at; at < format.size() && kModifiers.find(format[at]) != std::string_view::npos; ++at) {
      if (format[at] == '-' || format[at] == '_') found.isPadded = false;
    }
    if (at == format.size()) break;
    found.letter = format[at++];
    found.behind = format.substr(at, format.find('%', at) - at);
    conversions.push_back(found);
  }
  return conversions;
}

/// The symbol of a FormatDate pattern; empty for what is no part of a short date.
std::string_view DateSymbol(const Conversion& conversion) {
  switch (conversion.letter) {
    case 'd':
      return conversion.isPadded ? "dd" : "d";
    case 'e':
      return "d";
    case 'm':
      return conversion.isPadded ? "mm" : "m";
    case 'b':
    case 'B':
    case 'h':
      return "mmm";
    case 'y':
    case 'Y':
      return "yyyy";
    default:
      return {};
  }
}

DateOrder OrderOf(char firstSymbol) {
  if (firstSymbol == 'y') return DateOrder::YearFirst;
  return firstSymbol == 'd' ? DateOrder::DayFirst : DateOrder::MonthFirst;
}

bool IsCommonDateSeparator(std::string_view text) {
  return text == "/" || text == "-" || text == ".";
}

std::string_view Expanded(std::string_view format) {
  if (format == "%D") return "%m/%d/%y";
  if (format == "%F") return "%Y-%m-%d";
  if (format == "%T") return "%H:%M:%S";
  if (format == "%r") return "%I:%M:%S %p";
  return format;
}

}  // namespace

void TakeDateFormat(std::string_view format, Locale& locale) {
  const auto conversions = ConversionsOf(Expanded(format));
  std::string pattern;
  int parts = 0;
  for (const Conversion& conversion : conversions) {
    const std::string_view symbol = DateSymbol(conversion);
    if (symbol.empty()) return;
    if (parts++ > 0) pattern += '/';
    pattern += symbol;
  }
  if (parts != 3) return;
  const std::string_view separator = conversions.front().behind;
  locale.dateSeparator = IsCommonDateSeparator(separator) ? separator : "/";
  locale.dateOrder = OrderOf(pattern.front());
  locale.shortDate = pattern;
}

void TakeTimeFormat(std::string_view format, Locale& locale) {
  const auto conversions = ConversionsOf(Expanded(format));
  if (conversions.empty()) return;
  const Conversion& hours = conversions.front();
  if (hours.letter == 'H' || hours.letter == 'k') {
    const bool isPadded = hours.letter == 'H' && hours.isPadded;
    locale.longTime = isPadded ? "hh:nn:ss" : "h:nn:ss";
    locale.timeSeparator = hours.behind == "." ? "." : ":";
  } else {
    locale.longTime = "h:nn:ss AM/PM";
    locale.timeSeparator = ":";
  }
}

}  // namespace rangewerks::systems
