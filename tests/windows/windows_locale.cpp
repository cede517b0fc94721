#include "windows/windows_locale.h"

#include <array>
#include <string>

#include "com/bridge/text.h"

namespace rangewerks::tests {
namespace {

using automation::DateOrder;
using automation::Locale;

std::string Fact(LCID id, LCTYPE type) {
  std::array<wchar_t, 128> buffer{};
  const int length = GetLocaleInfoW(id, type | LOCALE_NOUSEROVERRIDE, buffer.data(),
                                    static_cast<int>(buffer.size()));
  return length == 0 ? std::string()
                     : com::FromWide({buffer.data(), static_cast<std::size_t>(length) - 1});
}

template <std::size_t N>
std::array<std::string, N> Facts(LCID id, const std::array<LCTYPE, N>& types) {
  std::array<std::string, N> facts;
  for (std::size_t i = 0; i < N; ++i) facts.at(i) = Fact(id, types.at(i));
  return facts;
}

/// A FormatDate pattern for one of the system's, where M is always the month and m the minute.
std::string PatternOf(const std::string& format) {
  std::string pattern;
  for (const char c : format) {
    switch (c) {
      case 'm':
        pattern += 'n';
        break;
      case 't':  // AM or PM, one letter of two
        if (!pattern.ends_with("AM/PM")) pattern += "AM/PM";
        break;
      default:
        pattern += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    }
  }
  return pattern;
}

int LastTwoDigitYear(LCID id) {
  DWORD year = 0;
  GetCalendarInfoW(id, CAL_GREGORIAN, CAL_ITWODIGITYEARMAX | CAL_RETURN_NUMBER, nullptr, 0, &year);
  return static_cast<int>(year);
}

}  // namespace

Locale LocaleOf(LCID id) {
  Locale locale;
  locale.decimalSeparator = Fact(id, LOCALE_SDECIMAL);
  locale.thousandsSeparator = Fact(id, LOCALE_STHOUSAND);
  locale.listSeparator = Fact(id, LOCALE_SLIST);
  locale.currencySymbol = Fact(id, LOCALE_SCURRENCY);
  locale.dateOrder = static_cast<DateOrder>(Fact(id, LOCALE_IDATE).at(0) - '0');
  locale.dateSeparator = Fact(id, LOCALE_SDATE);
  locale.lastTwoDigitYear = LastTwoDigitYear(id);
  locale.timeSeparator = Fact(id, LOCALE_STIME);
  locale.shortDate = PatternOf(Fact(id, LOCALE_SSHORTDATE));
  locale.longTime = PatternOf(Fact(id, LOCALE_STIMEFORMAT));
  locale.monthNames = Facts<12>(
      id, {LOCALE_SMONTHNAME1, LOCALE_SMONTHNAME2, LOCALE_SMONTHNAME3, LOCALE_SMONTHNAME4,
           LOCALE_SMONTHNAME5, LOCALE_SMONTHNAME6, LOCALE_SMONTHNAME7, LOCALE_SMONTHNAME8,
           LOCALE_SMONTHNAME9, LOCALE_SMONTHNAME10, LOCALE_SMONTHNAME11, LOCALE_SMONTHNAME12});
  locale.shortMonthNames = Facts<12>(
      id, {LOCALE_SABBREVMONTHNAME1, LOCALE_SABBREVMONTHNAME2, LOCALE_SABBREVMONTHNAME3,
           LOCALE_SABBREVMONTHNAME4, LOCALE_SABBREVMONTHNAME5, LOCALE_SABBREVMONTHNAME6,
           LOCALE_SABBREVMONTHNAME7, LOCALE_SABBREVMONTHNAME8, LOCALE_SABBREVMONTHNAME9,
           LOCALE_SABBREVMONTHNAME10, LOCALE_SABBREVMONTHNAME11, LOCALE_SABBREVMONTHNAME12});
  locale.dayNames =  // the system's start with Monday
      Facts<7>(id, {LOCALE_SDAYNAME7, LOCALE_SDAYNAME1, LOCALE_SDAYNAME2, LOCALE_SDAYNAME3,
                    LOCALE_SDAYNAME4, LOCALE_SDAYNAME5, LOCALE_SDAYNAME6});
  locale.shortDayNames =
      Facts<7>(id, {LOCALE_SABBREVDAYNAME7, LOCALE_SABBREVDAYNAME1, LOCALE_SABBREVDAYNAME2,
                    LOCALE_SABBREVDAYNAME3, LOCALE_SABBREVDAYNAME4, LOCALE_SABBREVDAYNAME5,
                    LOCALE_SABBREVDAYNAME6});
  return locale;
}

}  // namespace rangewerks::tests
