#include "systems/windows/locale_facts.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "systems/windows/text.h"

namespace rangewerks::systems {
namespace {

using automation::DateOrder;
using automation::Locale;

/// Asks for the facts of one locale.
class Facts {
 public:
  explicit Facts(const wchar_t* name) : name_(name) {}

  /// Leaves the fact alone when the system can't tell it.
  void Take(LCTYPE type, std::string& fact) const {
    std::wstring text(
        static_cast<std::size_t>(std::max(GetLocaleInfoEx(name_, type, nullptr, 0), 0)), L'\0');
    const int length = GetLocaleInfoEx(name_, type, text.data(), static_cast<int>(text.size()));
    if (length == 0) return;
    text.resize(static_cast<std::size_t>(length) - 1);  // without the NUL
    fact = Utf8Of(text);
  }

  /// The types of names follow each other.
  template <std::size_t N>
  void TakeNames(LCTYPE first, std::array<std::string, N>& names) const {
    for (std::size_t i = 0; i < N; ++i) Take(first + static_cast<LCTYPE>(i), names.at(i));
  }

  /// Sunday, which comes first with us, is the last of the system's days.
  void TakeDayNames(LCTYPE monday, std::array<std::string, 7>& names) const {
    for (std::size_t i = 0; i < names.size(); ++i) {
      Take(monday + static_cast<LCTYPE>((i + 6) % 7), names.at(i));
    }
  }

  DateOrder Order() const {
    DWORD order = 0;
    GetLocaleInfoEx(name_, LOCALE_IDATE | LOCALE_RETURN_NUMBER, reinterpret_cast<wchar_t*>(&order),
                    sizeof order / sizeof(wchar_t));
    if (order == 1) return DateOrder::DayFirst;
    return order == 2 ? DateOrder::YearFirst : DateOrder::MonthFirst;
  }

  void TakeLastTwoDigitYear(int& year) const {
    DWORD number = 0;
    if (GetCalendarInfoEx(name_, CAL_GREGORIAN, nullptr, CAL_ITWODIGITYEARMAX | CAL_RETURN_NUMBER,
                          nullptr, 0, &number) != 0) {
      year = static_cast<int>(number);
    }
  }

 private:
  const wchar_t* name_;
};

void TakeDates(const Facts& facts, Locale& locale) {
  locale.dateOrder = facts.Order();
  facts.Take(LOCALE_SDATE, locale.dateSeparator);
  facts.TakeLastTwoDigitYear(locale.lastTwoDigitYear);
  std::string picture;
  facts.Take(LOCALE_SSHORTDATE, picture);
  if (!picture.empty()) locale.shortDate = DatePatternOf(picture, locale.dateSeparator);
  facts.TakeNames(LOCALE_SMONTHNAME1, locale.monthNames);
  facts.TakeNames(LOCALE_SABBREVMONTHNAME1, locale.shortMonthNames);
  facts.TakeDayNames(LOCALE_SDAYNAME1, locale.dayNames);
  facts.TakeDayNames(LOCALE_SABBREVDAYNAME1, locale.shortDayNames);
}

void TakeTimes(const Facts& facts, Locale& locale) {
  facts.Take(LOCALE_STIME, locale.timeSeparator);
  std::string picture;
  facts.Take(LOCALE_STIMEFORMAT, picture);
  if (!picture.empty()) locale.longTime = TimePatternOf(picture, locale.timeSeparator);
}

}  // namespace

Locale ReadLocale(const wchar_t* name) {
  Locale locale;
  const Facts facts(name);
  facts.Take(LOCALE_SDECIMAL, locale.decimalSeparator);
  facts.Take(LOCALE_STHOUSAND, locale.thousandsSeparator);
  facts.Take(LOCALE_SLIST, locale.listSeparator);
  facts.Take(LOCALE_SCURRENCY, locale.currencySymbol);
  TakeDates(facts, locale);
  TakeTimes(facts, locale);
  return locale;
}

}  // namespace rangewerks::systems
