// The facts of a locale that conversions depend on. They come from the system or from a test.
#pragma once

#include <array>
#include <string>

namespace rangewerks::automation {

/// In which order a date is written. The values are those that spreadsheets report.
enum class DateOrder { MonthFirst = 0, DayFirst = 1, YearFirst = 2 };

/// How numbers and dates are written. The default is the month-first locale with a decimal point.
struct Locale {
  std::string decimalSeparator = ".";
  std::string thousandsSeparator = ",";
  std::string listSeparator = ",";
  std::string currencySymbol = "$";
  DateOrder dateOrder = DateOrder::MonthFirst;
  std::string dateSeparator = "/";
  int lastTwoDigitYear = 2029;  ///< two digits stand for this year or one of the 99 before it
  std::string timeSeparator = ":";
  std::string shortDate = "m/d/yyyy";      ///< as a FormatDate pattern, for CStr of a date
  std::string longTime = "h:nn:ss AM/PM";  ///< as a FormatDate pattern, for CStr of a time
  std::array<std::string, 12> monthNames = {"January",   "February", "March",    "April",
                                            "May",       "June",     "July",     "August",
                                            "September", "October",  "November", "December"};
  std::array<std::string, 12> shortMonthNames = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  std::array<std::string, 7> dayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                         "Thursday", "Friday", "Saturday"};  ///< from Sunday
  std::array<std::string, 7> shortDayNames = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

  /// The locale of this process: the platform's conversions use it wherever the caller has no say,
  /// as the automation languages do. Month first until SetCurrent is called.
  static const Locale& Current();
  /// Called once at start-up by the outermost code, with the system's facts.
  static void SetCurrent(Locale locale);
};

}  // namespace rangewerks::automation
