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

/// To text. Numbers: up to 15 significant digits, halves rounded up, without zeros at the end, the
/// locale's decimal separator, no thousands separators, an exponent of at least two digits from
/// 1E+15 up and below 1E-04 as in "1E+15", "-1E-05"; "1.#INF", "-1.#INF" and "1.#QNAN" for what
/// isn't finite. Booleans: "True", "False" in every locale. Dates: the locale's short date, then a
/// blank and the long time unless it is midnight; on day 0 the time alone; 6 outside the range of
/// Date.
std::string ToString(const Variant& value, const Locale& locale);

/// To a double. True is -1. A date is its serial number. A text is understood as a whole or is a
/// mismatch, the empty text too:
/// - digits 0 to 9, at least one, with at most one decimal separator before, among or behind them;
/// - thousands separators anywhere behind the first digit, in the fraction too: "1.234,5" is 1.2345
///   where "." is the decimal separator. Where the locale has a blank as separator, every blank
///   is one;
/// - an exponent behind e, E, d or D, with at least one digit;
/// - around that, in any order: white space of any script, one sign before or behind it or
///   parentheses as minus, one currency symbol before or behind it;
/// - or "&H" or "&O" and an integer of at most 64 bits, with no sign or currency symbol of its own.
///   Its sign is the highest of 32 bits, or of 64 when it has more: "&H80000000" is negative.
/// The result is the double nearest to the text's value; 6 when that is too great, 0 when it is too
/// small.
double ToDouble(const Variant& value, const Locale& locale);

/// To a signed 16-bit or 32-bit integer: as ToDouble, then rounded with ties to the even number. An
/// "&H" or "&O" text is a pattern of so many bits: "&HFFFF" is -1 as 16-bit and 65535 as 32-bit
/// integer.
std::int16_t ToInteger(const Variant& value, const Locale& locale);
std::int32_t ToLong(const Variant& value, const Locale& locale);

/// To a boolean: any number but 0 is true; the texts "True" and "False" in any case, "#TRUE#" and
/// "#FALSE#", or a text that reads as a number. No blanks may stand around the words.
bool ToBoolean(const Variant& value, const Locale& locale);

/// To a date. Numbers are serial numbers (6 outside the range of Date; -657434.75 is still the
/// first day, at 18:00). Texts: a date, a time, or both in either order with a blank between; white
/// space of any script is a blank.
///
/// A date is two or three parts, each joined to the next by blanks, by one of the locale's date
/// separator, "/", "-", ".", "," with or without blanks, or by nothing between a number and a name:
/// - a month may be named, in full or short, in the locale or in English, in any case, with or
///   without the dot of an abbreviation. Without a name, commas don't join, dots only where the
///   locale's separator starts with one, and two parts need the locale's separator, "/" or "-": a
///   text that is only a number is a mismatch;
/// - a number of three or four digits is a year, and stands first or last. One of one or two digits
///   is the year of the locale's hundred that ends so. The year stands where the locale has it
///   unless its digits tell; behind a month's name it stands last;
/// - month and day follow in the locale's order, behind a year always month before day, and in the
///   other order when that day doesn't exist;
/// - two parts are a month and a day of the current year; or a month and a year, standing for the
///   month's first day, when the number can be no day at all: three or four digits, 0, 32 to 99;
/// - a day that its month lacks, such as 29/02/2021, is a mismatch, as are names of weekdays.
///
/// A time is hours and minutes, and seconds if wanted, joined by ":" or the locale's time separator
/// with or without blanks, 0:00 to 23:59:59. "AM" may stand behind hours up to 12 and "PM" behind
/// all, hours alone too. Without a date it lies on day 0.
Date ToDate(const Variant& value, const Locale& locale);

/// The number at the start of a text, read the lenient way: blanks, tabs and line feeds are passed
/// over anywhere, the decimal separator is always ".", it ends at the first character that can't
/// belong to a number (exponents after E or D can, if they have a digit), and is 0 when there is
/// none. "&H" and "&O" start an integer that is a 16-bit pattern up to &HFFFF, which is -1, and a
/// 32-bit pattern above. Never a mismatch; 6 when it is too great for a double or for 32 bits.
double LeadingNumber(std::string_view text);

/// Rounds to so many decimal places, ties to the even digit: the double nearest to the rounded
/// exact value. A number that has no more than these places comes back as exactly the same double.
/// Raises 5 for places below 0.
double RoundHalfEven(double value, int places);

/// Whether ToDouble would succeed. Dates and no object aren't numeric; empty and booleans are. What
/// the default member of an object raises goes through.
bool IsNumeric(const Variant& value, const Locale& locale);
/// Whether the value is a date or a text that ToDate understands. Numbers aren't dates.
bool IsDate(const Variant& value, const Locale& locale);

/// Writes a date, to the nearest second, by a pattern of d, dd, ddd, dddd, m, mm, mmm, mmmm, yy,
/// yyyy (always four digits), h, hh, n, nn, s, ss (m and mm right after hours are minutes), AM/PM
/// or am/pm (which makes all hours of the pattern 1 to 12), "/" for the locale's date separator and
/// ":" for its time separator; a backslash or quotes keep what follows or stands between them as it
/// is, and so is any other character. Letters of the pattern may be in either case. Raises 6
/// outside the range of Date.
std::string FormatDate(Date date, std::string_view pattern, const Locale& locale);
/// A text that reads as a date is written by the pattern; any other text comes back as it is. An
/// empty pattern leaves every text as it is.
std::string FormatDateText(std::string_view text, std::string_view pattern, const Locale& locale);

/// The date of a calendar day; the year is 100 to 9999, the month 1 to 12, the day 1 to that
/// month's length. Raises 13 for a day that doesn't exist.
Date DateOf(int year, int month, int day);
/// The text of a date as ISO 8601: "2024-01-31", with "T13:45:00" behind when it isn't midnight.
/// Raises 6 outside the range of Date.
std::string IsoDate(Date date);

}  // namespace rangewerks::automation
