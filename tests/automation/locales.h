// Three locales that differ in all that conversions depend on.
#pragma once

#include <array>

#include "automation/locale.h"

namespace rangewerks::tests {

/// "1,234.5", "12/31/2024", "$".
inline automation::Locale MonthFirst() { return {}; }

/// "1.234,5", "31.12.2024", "€".
inline automation::Locale DayFirst() {
  automation::Locale locale;
  locale.decimalSeparator = ",";
  locale.thousandsSeparator = ".";
  locale.listSeparator = ";";
  locale.currencySymbol = "€";
  locale.dateOrder = automation::DateOrder::DayFirst;
  locale.dateSeparator = ".";
  locale.shortDate = "dd.mm.yyyy";
  locale.longTime = "hh:nn:ss";
  locale.monthNames = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                       "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
  locale.shortMonthNames = {"Jan", "Feb", "Mär", "Apr", "Mai", "Jun",
                            "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
  locale.dayNames = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                     "Donnerstag", "Freitag", "Samstag"};
  locale.shortDayNames = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"};
  return locale;
}

/// "1 234,5" with a no-break space, "2024-12-31", "kr".
inline automation::Locale YearFirst() {
  automation::Locale locale;
  locale.decimalSeparator = ",";
  locale.thousandsSeparator = "\u00A0";
  locale.listSeparator = ";";
  locale.currencySymbol = "kr";
  locale.dateOrder = automation::DateOrder::YearFirst;
  locale.dateSeparator = "-";
  locale.shortDate = "yyyy-mm-dd";
  locale.longTime = "hh:nn:ss";
  locale.monthNames = {"januari", "februari", "mars",      "april",   "maj",      "juni",
                       "juli",    "augusti",  "september", "oktober", "november", "december"};
  locale.shortMonthNames = {"jan.", "feb.", "mars",  "apr.", "maj",  "juni",
                            "juli", "aug.", "sept.", "okt.", "nov.", "dec."};
  return locale;
}

/// In the order of the columns of the tables of expected values.
inline const std::array<automation::Locale, 3>& AllLocales() {
  static const std::array<automation::Locale, 3> locales{MonthFirst(), DayFirst(), YearFirst()};
  return locales;
}

}  // namespace rangewerks::tests
