#include "windows/conversion_differences.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <regex>
#include <string>

#include "automation/conversions.h"

namespace rangewerks::tests {
namespace {

/// Whether a regular expression is found in the text, in either case. Each is compiled once.
bool Has(const std::string& text, const char* pattern) {
  static std::map<std::string, std::regex> expressions;
  const auto found = expressions.try_emplace(pattern, pattern, std::regex::icase).first;
  return std::regex_search(text, found->second);
}

/// In the text of a case, every no-break space is a blank.
bool Has(const Case& c, const char* pattern) {
  static const std::regex noBreakSpace("\xC2\xA0|\xE2\x80\xAF");
  return Has(std::regex_replace(c.text, noBreakSpace, " "), pattern);
}

bool IsBitPattern(const Case& c) { return Has(c, "&[HO]"); }
bool IsDateOfText(const Case& c) { return c.conversion == Conversion::DateOfText; }
bool IsNumberOfText(const Case& c) { return c.conversion < Conversion::DateOfText; }

/// The text is a mismatch to us and is understood, or is too great, to the platform.
bool OnlyWeRefuse(const Case& c) { return c.ours.failure == 13 && c.theirs.failure != 13; }
bool OnlyTheyRefuse(const Case& c) { return c.ours.failure != 13 && c.theirs.failure == 13; }
bool BothRead(const Case& c) { return c.ours.IsValue() && c.theirs.IsValue(); }

bool WeRefuseNumber(const Case& c) { return IsNumberOfText(c) && OnlyWeRefuse(c); }
bool TheyRefuseNumber(const Case& c) { return IsNumberOfText(c) && OnlyTheyRefuse(c); }
bool WeRefuseDate(const Case& c) { return IsDateOfText(c) && OnlyWeRefuse(c); }
bool TheyRefuseDate(const Case& c) { return IsDateOfText(c) && OnlyTheyRefuse(c); }

std::size_t CountOf(const std::string& text, const std::string& wanted) {
  std::size_t count = 0;
  for (std::size_t at = text.find(wanted); at != std::string::npos;
       at = text.find(wanted, at + wanted.size())) {
    ++count;
  }
  return count;
}

// ---- texts that are numbers

bool IsOffInItsLastDigits(const Case& c) {
  return c.conversion == Conversion::DoubleOfText && BothRead(c) &&
         std::abs(c.theirs.number - c.ours.number) < std::abs(c.ours.number) * 1e-14;
}

bool IsGreatestOrSmallest(const Case& c) {
  return IsNumberOfText(c) && Has(c, "^-?(1[.]7976931348623157e308|(4[.]9|5)e-32[45])$");
}

bool IsNegativeZero(const Case& c) {
  return IsNumberOfText(c) && BothRead(c) && c.ours.number == 0 && c.theirs.number == 0;
}

bool IsSmallFractionAsOne(const Case& c) {
  return IsNumberOfText(c) && BothRead(c) && c.ours.number == 0 && std::abs(c.theirs.number) == 1 &&
         Has(c, "e-");
}

bool HasMoreThanOneSign(const Case& c) {
  if (!WeRefuseNumber(c) || IsBitPattern(c)) return false;
  const std::string text = std::regex_replace(c.text, std::regex("[eE][-+]"), "e");
  const auto isSign = [](char t) { return t == '-' || t == '+' || t == '('; };
  return std::count_if(text.begin(), text.end(), isSign) > 1 ||
         CountOf(text, "(") != CountOf(text, ")");
}

bool HasTwoCurrencySymbols(const Case& c) {
  return WeRefuseNumber(c) && CountOf(c.text, c.locale.currencySymbol) > 1;
}

bool HasSeparatorInExponent(const Case& c) {
  return WeRefuseNumber(c) && Has(c, c.locale.thousandsSeparator == ","   ? "[0-9]e[0-9]+,"
                                     : c.locale.thousandsSeparator == "." ? "[0-9]e[0-9]+[.]"
                                                                          : "[0-9]e *[0-9]* ");
}

bool IsSignedBitPattern(const Case& c) {
  return WeRefuseNumber(c) && IsBitPattern(c) && Has(c, "-");
}

bool IsWideBitPattern(const Case& c) {
  return IsNumberOfText(c) && IsBitPattern(c) && c.ours.IsValue() && c.theirs.failure == 6;
}

bool IsBitPatternBeforeBlank(const Case& c) {
  return IsNumberOfText(c) && IsBitPattern(c) && c.theirs.failure == 13 && Has(c, " $");
}

bool IsExponentWithD(const Case& c) { return TheyRefuseNumber(c) && Has(c, "[0-9]d[-+]?[0-9]"); }

bool IsExponentBehindCurrency(const Case& c) {
  const std::size_t symbol = c.text.find(c.locale.currencySymbol);
  return TheyRefuseNumber(c) && symbol != std::string::npos &&
         Has(c.text.substr(symbol), "[0-9] ?e[-+]?[0-9]");
}

bool IsNarrowNoBreakSpace(const Case& c) {
  return TheyRefuseNumber(c) && c.text.find("\u202F") != std::string::npos;
}

// ---- texts that are dates

bool IsLastBitOfATime(const Case& c) {
  return IsDateOfText(c) && BothRead(c) && std::abs(c.ours.number - c.theirs.number) < 1e-11;
}

/// A point that is no separator of dates in this locale.
bool HasPointAlone(const Case& c) {
  return IsDateOfText(c) && c.locale.dateSeparator != "." && c.text.find('.') != std::string::npos;
}

bool HasPointInATime(const Case& c) {
  return HasPointAlone(c) && c.theirs.IsValue() && std::trunc(c.theirs.number) != c.theirs.number;
}

bool HasPointBesideAName(const Case& c) {
  return HasPointAlone(c) && OnlyTheyRefuse(c) && Has(c, "[a-z]");
}

bool HasComma(const Case& c) { return WeRefuseDate(c) && c.text.find(',') != std::string::npos; }

bool HasStraySeparator(const Case& c) {
  return WeRefuseDate(c) && Has(c, "[-/.,]\\s*[-/.,]|^\\s*[-/.,]|[-/.,]\\s*$");
}

bool IsTwoNumbersAndABlank(const Case& c) {
  return WeRefuseDate(c) && Has(c, "^[^0-9]*[0-9]+[^-/.,:0-9A-Z]+[0-9]+[^0-9A-Z]*$");
}

bool IsLongNumber(const Case& c) { return WeRefuseDate(c) && Has(c, "[0-9]{5}"); }

bool HasLeadingZeros(const Case& c) { return WeRefuseDate(c) && Has(c, "(^|[^0-9])0[0-9]{2}"); }

/// The platform took a number of one or two digits for the year.
bool IsYearInAnotherPlace(const Case& c) {
  const bool isOfInterest = IsDateOfText(c) && (BothRead(c) || OnlyWeRefuse(c));
  if (!isOfInterest || !c.theirs.IsValue() || Has(c, "[0-9]{3}")) return false;
  const auto yearOf = [&](double serial) {
    return automation::FormatDate({serial}, "yy", c.locale);
  };
  const std::string year = yearOf(c.theirs.number);
  if (BothRead(c) && year == yearOf(c.ours.number)) return false;
  return Has(c, ("(^|[^0-9:])" + year + "($|[^0-9:])").c_str()) ||
         (year[0] == '0' && Has(c, ("(^|[^0-9:])" + year.substr(1) + "($|[^0-9:])").c_str()));
}

const char* const kEnglishMonth = "jan|feb|mar|apr|may|jun|jul|aug|sep|oct|nov|dec";

bool IsEnglish(const automation::Locale& locale) { return locale.monthNames[0] == "January"; }

bool IsEnglishMonthElsewhere(const Case& c) {
  return TheyRefuseDate(c) && !IsEnglish(c.locale) && Has(c, kEnglishMonth);
}

bool IsNameInLettersBeyondAscii(const Case& c) {
  return TheyRefuseDate(c) && Has(c, "\xC3[\x80-\x9E]");
}

bool IsAbbreviationWithoutDot(const Case& c) {
  if (!TheyRefuseDate(c)) return false;
  return std::any_of(c.locale.shortMonthNames.begin(), c.locale.shortMonthNames.end(),
                     [&](const std::string& name) {
                       return name.ends_with('.') && c.text.find(name) == std::string::npos &&
                              c.text.find(name.substr(0, name.size() - 1)) != std::string::npos;
                     });
}

bool HasDotOfAbbreviation(const Case& c) { return TheyRefuseDate(c) && Has(c, "[a-z][.]"); }

bool HasWeekday(const Case& c) { return WeRefuseDate(c) && Has(c, "mon|lundi"); }

bool HasTwoMonths(const Case& c) {
  return WeRefuseDate(c) && Has(c, "(jan|feb|mar)[^0-9]*(jan|feb|mar)");
}

bool HasNameInATime(const Case& c) {
  return WeRefuseDate(c) && Has(c, ":") && Has(c, kEnglishMonth);
}

bool HasLetterForHalfOfDay(const Case& c) { return WeRefuseDate(c) && Has(c, "[0-9] ?[ap]$"); }

bool IsMorningFromThirteen(const Case& c) { return WeRefuseDate(c) && Has(c, "13(:45)? am$"); }

bool HasSignBeforeTime(const Case& c) { return WeRefuseDate(c) && Has(c, "-1:00$"); }

// ---- numbers and dates

bool IsNotFinite(const Case& c) {
  return c.conversion >= Conversion::TextOfDouble && c.conversion <= Conversion::DateOfDouble &&
         !std::isfinite(c.number);
}

bool HasPointBeforeExponent(const Case& c) {
  std::string theirs = c.theirs.text;
  std::replace(theirs.begin(), theirs.end(), '.', ',');
  return c.conversion == Conversion::TextOfDouble && c.ours.text == theirs && Has(theirs, "E");
}

bool IsYearOfThreeDigits(const Case& c) {
  static const std::regex padded("(^|[^0-9])0([0-9]{3})");
  return c.conversion >= Conversion::TextOfDate && BothRead(c) &&
         std::regex_replace(c.ours.text, padded, "$1$2") == c.theirs.text;
}

/// Within half a second of midnight.
bool IsRoundedToMidnight(const Case& c) {
  const double fraction = std::abs(c.number - std::trunc(c.number)) * 86400;
  return c.conversion >= Conversion::TextOfDate && c.number < 2958465 && fraction != 0 &&
         (fraction < 0.5 || fraction > 86399.5);
}

bool IsLastHalfSecond(const Case& c) {
  return c.conversion >= Conversion::TextOfDate && c.number > 2958466 - 0.5 / 86400 &&
         c.number < 2958466;
}

bool IsOutOfRange(const Case& c) {
  return c.conversion >= Conversion::TextOfDate && c.ours.failure == 6 && c.theirs.failure == 5;
}

bool HasTwelveHours(const Case& c) {
  return c.conversion == Conversion::FormattedDate && Has(c, "AM/PM");
}

bool HasMonthBehindSeconds(const Case& c) {
  return c.conversion == Conversion::FormattedDate && c.text == "hh:ss mm";
}

}  // namespace

const std::vector<Difference>& ListedDifferences() {
  static const std::vector<Difference> differences = {
      {"last digits", "ours is the double nearest to the text", IsOffInItsLastDigits},
      {"ends of the range", "the greatest and the smallest double are numbers",
       IsGreatestOrSmallest},
      {"negative zero", "an amount of nothing has no sign", IsNegativeZero},
      {"small fractions", "9e-15 is no 1", IsSmallFractionAsOne},
      {"signs",
       "an opening parenthesis without its closing one is a mismatch by the platform's "
       "documentation, and two signs may mean plus or minus",
       HasMoreThanOneSign},
      {"currency symbols", "an amount has one", HasTwoCurrencySymbols},
      {"separators in exponents", "1e5,5 is no 1500000", HasSeparatorInExponent},
      {"signed bit patterns", "-&H10 is no 16", IsSignedBitPattern},
      {"wide bit patterns", "Windows reads them up to 64 bits", IsWideBitPattern},
      {"blanks behind bit patterns", "one blank behind a number is like any other",
       IsBitPatternBeforeBlank},
      {"D for E", "Windows reads it", IsExponentWithD},
      {"exponents behind a currency symbol", "$1e5 is no other amount than 1e5$",
       IsExponentBehindCurrency},
      {"narrow no-break spaces", "newer systems group digits with them", IsNarrowNoBreakSpace},
      {"last bit of a time", "ours is the double nearest to the seconds", IsLastBitOfATime},
      {"points in times", "12.30 in a cell for dates is an amount", HasPointInATime},
      {"points beside names", "5. Jan 2024 can mean nothing else", HasPointBesideAName},
      {"commas", "1,234 in a cell for dates is an amount", HasComma},
      {"stray separators", "a part of the date may be missing", HasStraySeparator},
      {"two numbers and a blank", "1 234 in a cell for dates is an amount", IsTwoNumbersAndABlank},
      {"long numbers", "a number of five digits is no part of a date", IsLongNumber},
      {"leading zeros", "three digits are a year and 0099 is no 1999", HasLeadingZeros},
      {"years in another place", "a number that can be no day is a slip of the pen and no year",
       IsYearInAnotherPlace},
      {"English months elsewhere", "statements and exports have them", IsEnglishMonthElsewhere},
      {"names beyond ASCII", "a month may be written in capitals in every language",
       IsNameInLettersBeyondAscii},
      {"abbreviations without their dot", "people leave it out", IsAbbreviationWithoutDot},
      {"dots of abbreviations", "they belong to the name", HasDotOfAbbreviation},
      {"weekdays", "by the documentation of CDate no weekday is understood", HasWeekday},
      {"two months", "one of them is wrong", HasTwoMonths},
      {"names in times", "an hour has no month", HasNameInATime},
      {"a and p", "3 p in a cell for dates is no afternoon", HasLetterForHalfOfDay},
      {"mornings from thirteen", "13:45 AM contradicts itself", IsMorningFromThirteen},
      {"signs before times", "a time isn't negative", HasSignBeforeTime},
      {"not finite", "Windows writes 1.#INF, and no integer or date stands for it", IsNotFinite},
      {"points before exponents", "the locale's separator, or 1.5E+20 would be read as 15E+20",
       HasPointBeforeExponent},
      {"years of three digits", "written with four, so that they read as years",
       IsYearOfThreeDigits},
      {"rounded to midnight", "midnight has no time, however it came about", IsRoundedToMidnight},
      {"last half second", "there is no year 10000", IsLastHalfSecond},
      {"dates out of range", "what doesn't fit is an overflow", IsOutOfRange},
      {"twelve hours", "by the documentation AM/PM makes hours 1 to 12", HasTwelveHours},
      {"months behind seconds", "by the documentation mm is minutes right behind hours",
       HasMonthBehindSeconds},
  };
  return differences;
}

}  // namespace rangewerks::tests
