// The platform's conversions between kinds of values. They follow the rules of OLE Automation, on
// which every caller of the library already relies, with the locale's facts passed in.
//
// What can't be converted raises 13 "Type mismatch", what doesn't fit 6 "Overflow", null 94
// "Invalid use of Null". An object stands for the value of its default member; no object raises 91.
// Error values, omitted arguments and arrays never convert (13). Empty is "", 0, false, or the date
// with the number 0.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/locale.h"
#include "automation/variant.h"

namespace rangewerks::automation {

/// To text. Numbers: up to 15 significant digits, the locale's decimal separator, no thousands
/// separators, an exponent from 1E+15 up and below 1E-04 as in "1E+15", "-1E-05". Booleans: "True",
/// "False". Dates: the locale's short date, then a blank and the long time unless it is midnight;
/// on day 0 the time alone.
std::string ToString(const Variant& value, const Locale& locale);

/// To a double. Texts: blanks around it, one sign before or behind, parentheses as minus, the
/// currency symbol, thousands separators anywhere among the integer digits, the decimal separator,
/// an exponent after e, E, d or D, and "&H" and "&O" integers are understood; all else is a
/// mismatch, the empty text too. True is -1. A date is its serial number.
double ToDouble(const Variant& value, const Locale& locale);

/// To a signed 16-bit or 32-bit integer: as ToDouble, then rounded with ties to the even number.
std::int16_t ToInteger(const Variant& value, const Locale& locale);
std::int32_t ToLong(const Variant& value, const Locale& locale);

/// To a boolean: any number but 0 is true; the texts "True" and "False" in any case, or a text that
/// reads as a number.
bool ToBoolean(const Variant& value, const Locale& locale);

/// To a date. Numbers are serial numbers (6 outside the range of Date). Texts: a date, a time, or
/// both; parts separated by the locale's date separator, "/", "-", "." or blanks, months also by
/// name; the locale's date order, and the other order of day and month when that one is impossible;
/// a year of two digits is 2000 to 2029 up to 29 and 1930 to 1999 from 30; a date without a year is
/// in the year of `today`; a day that its month lacks, such as 29/02/2021, is a mismatch; so is a
/// text that is only a number.
Date ToDate(const Variant& value, const Locale& locale);

/// The number at the start of a text, read the lenient way: blanks, tabs and line feeds are passed
/// over anywhere, the decimal separator is always ".", it ends at the first character that can't
/// belong to a number ("&H" and "&O" integers and exponents after E or D can), and is 0 when there
/// is none. Never a mismatch; 6 when it is too great for a double.
double LeadingNumber(std::string_view text);

/// Rounds to so many decimal places (0 or more), ties to the even digit. A number that has no more
/// than these places comes back as exactly the same double.
double RoundHalfEven(double value, int places);

/// Whether ToDouble would succeed. Dates aren't numeric; empty and booleans are.
bool IsNumeric(const Variant& value, const Locale& locale);
/// Whether the value is a date or a text that ToDate understands. Numbers aren't dates.
bool IsDate(const Variant& value, const Locale& locale);

/// Writes a date by a pattern of d, dd, ddd, dddd, m, mm, mmm, mmmm, yy, yyyy, h, hh, n, nn, s, ss
/// (m and mm right after hours are minutes), AM/PM, "/" for the locale's date separator and ":" for
/// its time separator; a backslash or quotes keep what follows or stands between them as it is.
/// Letters of the pattern may be in either case.
std::string FormatDate(Date date, std::string_view pattern, const Locale& locale);
/// A text that reads as a date is written by the pattern; any other text comes back as it is. An
/// empty pattern leaves every text as it is.
std::string FormatDateText(std::string_view text, std::string_view pattern, const Locale& locale);

/// The date of a calendar day; the month is 1 to 12, the day 1 to that month's length. Raises 13
/// for a day that doesn't exist.
Date DateOf(int year, int month, int day);
/// The text of a date as ISO 8601: "2024-01-31", with "T13:45:00" behind when it has a time.
std::string IsoDate(Date date);

}  // namespace rangewerks::automation
