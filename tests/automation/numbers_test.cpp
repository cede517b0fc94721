#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "automation/conversions.h"
#include "automation/locales.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::ErrorNumber;
using automation::IsNumeric;
using automation::LeadingNumber;
using automation::Locale;
using automation::RoundHalfEven;
using automation::ToDouble;
using automation::ToInteger;
using automation::ToLong;
using automation::ToString;

constexpr double kMismatch = std::numeric_limits<double>::quiet_NaN();
constexpr double kOverflow = std::numeric_limits<double>::infinity();

struct NumberRow {
  std::string text;
  double expected[3];  ///< by the order of AllLocales

  NumberRow(const char* t, double everywhere)
      : text(t), expected{everywhere, everywhere, everywhere} {}
  NumberRow(const char* t, double monthFirst, double dayFirst, double yearFirst)
      : text(t), expected{monthFirst, dayFirst, yearFirst} {}
};

const std::vector<NumberRow>& NumberRows() {
  static const std::vector<NumberRow> rows = {
      // plain numbers and signs
      {"0", 0},
      {"7", 7},
      {"00012", 12},
      {"-7", -7},
      {"+7", 7},
      {"7-", -7},
      {"7+", 7},
      {"- 7", -7},
      {"7 -", -7},
      {"-7-", kMismatch},
      {"+7-", kMismatch},
      {"--7", kMismatch},
      {"+-7", kMismatch},
      {"-", kMismatch},
      {"-0", 0},
      // parentheses
      {"(7)", -7},
      {" ( 7 ) ", -7},
      {"(7", kMismatch},
      {"7)", kMismatch},
      {"()", kMismatch},
      {"((7))", kMismatch},
      {"-(7)", kMismatch},
      {"(-7)", kMismatch},
      {"(7)-", kMismatch},
      // blanks
      {" 7 ", 7},
      {"\t7\r\n", 7},
      {"", kMismatch},
      {" ", kMismatch},
      {"\u00A07\u202F", 7},
      {"\u2009-\u30007", -7},
      {"\u200B7", kMismatch},
      // separators
      {".", kMismatch},
      {",", kMismatch},
      {"1.5", 1.5, 15, kMismatch},
      {"1,5", 15, 1.5, 1.5},
      {".5", 0.5, kMismatch, kMismatch},
      {",5", kMismatch, 0.5, 0.5},
      {"-,5", kMismatch, -0.5, -0.5},
      {"5.", 5, 5, kMismatch},
      {"5,", 5},
      {"1,234.5", 1234.5, 1.2345, kMismatch},
      {"1.234,5", 1.2345, 1234.5, kMismatch},
      {"1.234.567,89", kMismatch, 1234567.89, kMismatch},
      {"1,234,567.89", 1234567.89, kMismatch, kMismatch},
      {"1 234,5", kMismatch, kMismatch, 1234.5},
      {"1\u00A0234,5", kMismatch, kMismatch, 1234.5},
      {"1\u202F234,5", kMismatch, kMismatch, 1234.5},
      {"1 2", kMismatch, kMismatch, 12},
      {"1,2,3", 123, kMismatch, kMismatch},
      {"1,,2", 12, kMismatch, kMismatch},
      {"1.2.3", kMismatch, 123, kMismatch},
      {"0.1", 0.1, 1, kMismatch},
      {"123456789012345.67", 123456789012345.67, 12345678901234567.0, kMismatch},
      // currency symbols
      {"$5", 5, kMismatch, kMismatch},
      {"5 $", 5, kMismatch, kMismatch},
      {"-$5", -5, kMismatch, kMismatch},
      {"$-5", -5, kMismatch, kMismatch},
      {"$5-", -5, kMismatch, kMismatch},
      {"$ 5", 5, kMismatch, kMismatch},
      {"($5)", -5, kMismatch, kMismatch},
      {"$(5)", -5, kMismatch, kMismatch},
      {"(5)$", -5, kMismatch, kMismatch},
      {"$5$", kMismatch},
      {"$", kMismatch},
      {"5€", kMismatch, 5, kMismatch},
      {"1.234,56 €", kMismatch, 1234.56, kMismatch},
      {"1.234,56\u00A0€", kMismatch, 1234.56, kMismatch},
      {"5 €-", kMismatch, -5, kMismatch},
      {"5 kr", kMismatch, kMismatch, 5},
      {"5 KR", kMismatch},
      // exponents
      {"1e5", 1e5},
      {"1E5", 1e5},
      {"1d5", 1e5},
      {"1D+5", 1e5},
      {"1e-5", 1e-5},
      {"-2E3-", kMismatch},
      {"2E3-", -2000},
      {"1e", kMismatch},
      {"1e+", kMismatch},
      {"e5", kMismatch},
      {"1e5.5", kMismatch},
      {"1e5e5", kMismatch},
      {"1e308", 1e308},
      {"1e309", kOverflow},
      {"-1e309", kOverflow},
      {"1e99999999999999999999", kOverflow},
      {"1e-400", 0},
      {"1e-99999999999999999999", 0},
      {"0e99999999999999999999", 0},
      // bit patterns
      {"&H10", 16},
      {"&hfF", 255},
      {" &H10 ", 16},
      {"&O17", 15},
      {"&o17", 15},
      {"&HFFFF", 65535},
      {"&H7FFFFFFF", 2147483647.0},
      {"&H80000000", -2147483648.0},
      {"&HFFFFFFFF", -1},
      {"&H0FFFFFFFF", -1},
      {"&H100000000", 4294967296.0},
      {"&H7FFFFFFFFFFFFFFF", 9223372036854775807.0},
      {"&H8000000000000000", -9223372036854775808.0},
      {"&HFFFFFFFFFFFFFFFF", -1},
      {"&H1FFFFFFFFFFFFFFFF", kOverflow},
      {"&H1FFFFFFFFFFFFFFFFG", kMismatch},
      {"&H", kMismatch},
      {"&", kMismatch},
      {"&10", kMismatch},
      {"&HG", kMismatch},
      {"&O8", kMismatch},
      {"-&H10", kMismatch},
      {"&H10-", kMismatch},
      {"&H1.5", kMismatch},
      // what is no number
      {"12abc", kMismatch},
      {"abc", kMismatch},
      {"5%", kMismatch},
      {"1_000", kMismatch},
      {"1'000", kMismatch},
      {"0x10", kMismatch},
      {"inf", kMismatch},
      {"nan", kMismatch},
      {"True", kMismatch},
      {"13:45", kMismatch},
      {"31/12/2024", kMismatch},
      {"１２", kMismatch},
      {"\u22125", kMismatch},
  };
  return rows;
}

template <class Check>
void ForEachNumber(Check check) {
  for (const NumberRow& row : NumberRows()) {
    for (std::size_t i = 0; i < 3; ++i) {
      SCOPED_TRACE("\"" + row.text + "\" in locale " + std::to_string(i));
      check(row.text, AllLocales().at(i), row.expected[i]);
    }
  }
}

TEST(TextToDouble, FollowsTheLocale) {
  ForEachNumber([](const std::string& text, const Locale& locale, double expected) {
    if (std::isnan(expected)) {
      EXPECT_TRUE(ErrorOf([&] { ToDouble(text, locale); }).Is(ErrorNumber::TypeMismatch));
    } else if (std::isinf(expected)) {
      EXPECT_TRUE(ErrorOf([&] { ToDouble(text, locale); }).Is(ErrorNumber::Overflow));
    } else {
      EXPECT_EQ(ToDouble(text, locale), expected);
      EXPECT_FALSE(std::signbit(ToDouble(text, locale)) && expected == 0);
    }
  });
}

TEST(NumericText, IsOneThatConvertsToDouble) {
  ForEachNumber([](const std::string& text, const Locale& locale, double expected) {
    EXPECT_EQ(IsNumeric(text, locale), std::isfinite(expected));
  });
}

TEST(TextToDouble, TakesNoZeroCharacterForTheEnd) {
  EXPECT_TRUE(
      ErrorOf([] { ToDouble(std::string("5\0", 2), Locale()); }).Is(ErrorNumber::TypeMismatch));
  EXPECT_TRUE(ErrorOf([] {
                ToDouble(std::string("\0"
                                     "5",
                                     2),
                         Locale());
              }).Is(ErrorNumber::TypeMismatch));
}

TEST(TextToDouble, ReadsDigitsOfAnyCount) {
  EXPECT_EQ(ToDouble("1" + std::string(300, '0'), Locale()), 1e300);
  EXPECT_EQ(ToDouble("0." + std::string(300, '0') + "1", Locale()), 1e-301);
  EXPECT_EQ(ToDouble(std::string(5000, '0') + "5", Locale()), 5);
  EXPECT_EQ(ToDouble("0." + std::string(5000, '0') + "5", Locale()), 0);
  EXPECT_EQ(ToDouble("1." + std::string(5000, '3'), Locale()), 1.0 + 1.0 / 3.0);
  EXPECT_TRUE(ErrorOf([] { ToDouble(std::string(400, '9'), Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_EQ(ToDouble(std::string(400, '9') + "e-399", Locale()), 10);
}

TEST(TextToDouble, UnderstandsNoSymbolThatTheLocaleLacks) {
  Locale locale;
  locale.currencySymbol = "";
  locale.thousandsSeparator = "";
  EXPECT_EQ(ToDouble("5.5", locale), 5.5);
  EXPECT_TRUE(ErrorOf([&] { ToDouble("1,5", locale); }).Is(ErrorNumber::TypeMismatch));
  EXPECT_TRUE(ErrorOf([&] { ToDouble("$5", locale); }).Is(ErrorNumber::TypeMismatch));
}

TEST(NumberToWhole, RoundsHalvesToTheEvenNumber) {
  const std::vector<std::pair<double, int>> rows = {{0.5, 0},   {1.5, 2},   {2.5, 2},  {-0.5, 0},
                                                    {-1.5, -2}, {-2.5, -2}, {2.51, 3}, {0.49, 0}};
  for (const auto& [value, expected] : rows) {
    EXPECT_EQ(ToLong(value, Locale()), expected) << value;
    EXPECT_EQ(ToInteger(value, Locale()), expected) << value;
  }
  EXPECT_EQ(ToLong("2.5", MonthFirst()), 2);
  EXPECT_EQ(ToLong("3,5", DayFirst()), 4);
}

TEST(NumberToWhole, OverflowsOutsideOfItsBitsAfterRounding) {
  EXPECT_EQ(ToInteger(32767.49, Locale()), 32767);
  EXPECT_EQ(ToInteger(-32768.5, Locale()), -32768);
  EXPECT_TRUE(ErrorOf([] { ToInteger(32767.5, Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ErrorOf([] { ToInteger(-32768.51, Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_EQ(ToLong(2147483647.0, Locale()), 2147483647);
  EXPECT_EQ(ToLong(-2147483648.0, Locale()), std::numeric_limits<std::int32_t>::min());
  EXPECT_TRUE(ErrorOf([] { ToLong(2147483647.5, Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ErrorOf([] { ToLong("1e300", Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ErrorOf([] { ToLong(kMismatch, Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ErrorOf([] { ToLong(kOverflow, Locale()); }).Is(ErrorNumber::Overflow));
}

TEST(NumberToWhole, TakesTheHighestBitOfAPatternAsSign) {
  EXPECT_EQ(ToInteger("&HFFFF", Locale()), -1);
  EXPECT_EQ(ToInteger("&H8000", Locale()), -32768);
  EXPECT_EQ(ToInteger("&H7FFF", Locale()), 32767);
  EXPECT_TRUE(ErrorOf([] { ToInteger("&H10000", Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_EQ(ToLong("&HFFFF", Locale()), 65535);
  EXPECT_EQ(ToLong("&HFFFFFFFF", Locale()), -1);
  EXPECT_EQ(ToLong("&HF060", Locale()), 61536);
  EXPECT_TRUE(ErrorOf([] { ToInteger("&HFFFFFFFF", Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ErrorOf([] { ToLong("&HFFFFFFFFFFFFFFFF", Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ErrorOf([] { ToLong("&H100000000", Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ErrorOf([] { ToInteger("65535", Locale()); }).Is(ErrorNumber::Overflow));
}

TEST(DoubleToText, HasFifteenSignificantDigits) {
  const std::vector<std::pair<double, std::string>> rows = {
      {0.0, "0"},
      {-0.0, "0"},
      {1.0, "1"},
      {-1.0, "-1"},
      {100.0, "100"},
      {0.1, "0.1"},
      {0.1 + 0.2, "0.3"},
      {1234.5, "1234.5"},
      {-0.25, "-0.25"},
      {1.0 / 3, "0.333333333333333"},
      {2.0 / 3, "0.666666666666667"},
      {123456789012345.67, "123456789012346"},
      {999999999999999.0, "999999999999999"},
      {999999999999999.5, "1E+15"},
      {1e15, "1E+15"},
      {-1e15, "-1E+15"},
      {1.5e15, "1.5E+15"},
      {123456789012345678.0, "1.23456789012346E+17"},
      {1e100, "1E+100"},
      {0.0001, "0.0001"},
      {0.00012345, "0.00012345"},
      {0.00001, "1E-05"},
      {-0.00001, "-1E-05"},
      {0.0000123, "1.23E-05"},
      {1e-100, "1E-100"},
      {5e-324, "4.94065645841247E-324"},
      {1.7976931348623157e308, "1.79769313486232E+308"},
      {kOverflow, "1.#INF"},
      {-kOverflow, "-1.#INF"},
      {kMismatch, "1.#QNAN"},
  };
  for (const auto& [value, expected] : rows) EXPECT_EQ(ToString(value, MonthFirst()), expected);
}

TEST(DoubleToText, RoundsWhatIsExactlyHalfwayUp) {
  EXPECT_EQ(ToString(140737488355328.5, MonthFirst()), "140737488355329");
  EXPECT_EQ(ToString(-140737488355328.5, MonthFirst()), "-140737488355329");
  EXPECT_EQ(ToString(0.5000152587890625, MonthFirst()), "0.500015258789063");
  EXPECT_EQ(ToString(2.384185791015625e-07, MonthFirst()), "2.38418579101563E-07");
  EXPECT_EQ(ToString(1125899906842625.0, MonthFirst()), "1.12589990684263E+15");
  EXPECT_EQ(ToString(10000000000000050.0, MonthFirst()), "1.00000000000001E+16");
  EXPECT_EQ(ToString(1.100000000000005, MonthFirst()), "1.1") << "a little below the half";
  EXPECT_EQ(ToString(1.000000000000005, MonthFirst()), "1.00000000000001") << "a little above";
}

TEST(DoubleToText, HasTheDecimalSeparatorOfTheLocaleAndNoOther) {
  EXPECT_EQ(ToString(1234567.89, DayFirst()), "1234567,89");
  EXPECT_EQ(ToString(1.5e20, DayFirst()), "1,5E+20");
  EXPECT_EQ(ToString(0.5, YearFirst()), "0,5");
}

/// A decimal number of at most 15 digits, written as ToString writes it.
std::string RandomDecimal(std::mt19937_64& random) {
  std::uint64_t digits = random() % 1'000'000'000'000'000U;
  for (std::uint64_t cut = random() % 15; cut > 0; --cut) digits /= 10;
  while (digits != 0 && digits % 10 == 0) digits /= 10;
  std::string text = std::to_string(digits);
  const std::size_t places = digits == 0 ? 0 : random() % (text.size() + 3);
  if (places == 0) return text;
  if (text.size() <= places) text.insert(0, places + 1 - text.size(), '0');
  text.insert(text.size() - places, ".");
  // Below 0.0001 it would be written with an exponent.
  return text.starts_with("0.0000") ? "0" : text;
}

TEST(DoubleToText, GivesBackEveryDecimalNumberOfFifteenDigits) {
  std::mt19937_64 random(20240131);  // NOLINT(cert-msc51-cpp): the same numbers in every run
  for (int i = 0; i < 200000; ++i) {
    const std::string text = RandomDecimal(random);
    ASSERT_EQ(ToString(ToDouble(text, MonthFirst()), MonthFirst()), text);
    ASSERT_EQ(ToDouble("-" + text, MonthFirst()), -ToDouble(text, MonthFirst()));
  }
}

TEST(DoubleToText, GivesBackExponents) {
  std::mt19937_64 random(31012024);  // NOLINT(cert-msc51-cpp): the same numbers in every run
  for (int exponent = -307; exponent <= 307; ++exponent) {
    if (exponent >= -4 && exponent < 15) continue;
    std::string digits = std::to_string(random() % 90'000'000'000'000U + 10'000'000'000'000U);
    if (digits.back() == '0') digits.back() = '1';
    digits.insert(1, ".");
    std::string power = std::to_string(std::abs(exponent));
    if (power.size() == 1) power.insert(0, "0");
    const std::string text = digits + (exponent < 0 ? "E-" : "E+") + power;
    EXPECT_EQ(ToString(ToDouble(text, MonthFirst()), MonthFirst()), text);
  }
}

TEST(WholeToText, HasNoSeparators) {
  EXPECT_EQ(ToString(std::int16_t{-32768}, DayFirst()), "-32768");
  EXPECT_EQ(ToString(2147483647, DayFirst()), "2147483647");
}

TEST(LeadingNumber, EndsAtTheFirstCharacterThatCantBelongToIt) {
  const std::vector<std::pair<std::string, double>> rows = {
      {"", 0},
      {" ", 0},
      {"-", 0},
      {"+", 0},
      {".", 0},
      {"-.", 0},
      {"abc", 0},
      {"abc12", 0},
      {"12abc", 12},
      {"12", 12},
      {" 12 ", 12},
      {"-12", -12},
      {"+12", 12},
      {"- 12", -12},
      {"--12", 0},
      {"12-", 12},
      {"-0", 0},
      {"1 2 3abc", 123},
      {"\t1\n2", 12},
      {"1\r2", 1},
      {"1615 198th Street N.E.", 1615198},
      {"1.5", 1.5},
      {"1.5.2", 1.5},
      {"1,5", 1},
      {"1 . 5", 1.5},
      {".5", 0.5},
      {"-.5", -0.5},
      {"5.", 5},
      {"$5", 0},
      {"(5)", 0},
      {"5%", 5},
      {"1e3", 1000},
      {"1E3", 1000},
      {"1d3", 1000},
      {"1D-3", 0.001},
      {"1 e + 3", 1000},
      {"1e", 1},
      {"1e+", 1},
      {"1ex", 1},
      {"1e3e3", 1000},
      {"e3", 0},
      {".e3", 0},
      {"1e-400", 0},
      {"&H10", 16},
      {"&hff", 255},
      {"& H 1 0", 16},
      {"&HFFFF", -1},
      {"&H8000", -32768},
      {"&H7FFF", 32767},
      {"&H10000", 65536},
      {"&HFFFFFFFF", -1},
      {"&H7FFFFFFF", 2147483647},
      {"&H0000FFFF", -1},
      {"&H", 0},
      {"&HG", 0},
      {"&H1G", 1},
      {"&O17", 15},
      {"&O18", 1},
      {"&O177777", -1},
      {"&12", 0},
      {"&", 0},
      {"-&H10", 0},
      {"\u00A05", 0},
      {"5\u00A06", 5},
  };
  for (const auto& [text, expected] : rows) {
    EXPECT_EQ(LeadingNumber(text), expected) << '"' << text << '"';
    EXPECT_FALSE(std::signbit(LeadingNumber(text)) && expected == 0) << '"' << text << '"';
  }
}

TEST(LeadingNumber, OverflowsBeyondADoubleAndBeyond32Bits) {
  EXPECT_TRUE(ErrorOf([] { LeadingNumber("1e309"); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ErrorOf([] { LeadingNumber(std::string(400, '9')); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ErrorOf([] { LeadingNumber("&H100000000"); }).Is(ErrorNumber::Overflow));
}

TEST(RoundHalfEven, SendsTiesToTheEvenDigit) {
  EXPECT_EQ(RoundHalfEven(0.5, 0), 0);
  EXPECT_EQ(RoundHalfEven(1.5, 0), 2);
  EXPECT_EQ(RoundHalfEven(2.5, 0), 2);
  EXPECT_EQ(RoundHalfEven(-2.5, 0), -2);
  EXPECT_EQ(RoundHalfEven(0.125, 2), 0.12);
  EXPECT_EQ(RoundHalfEven(0.375, 2), 0.38);
  EXPECT_EQ(RoundHalfEven(-0.125, 2), -0.12);
}

TEST(RoundHalfEven, RoundsTheExactValueOfTheDouble) {
  EXPECT_EQ(RoundHalfEven(1.005, 2), 1.0) << "the double lies below 1.005";
  EXPECT_EQ(RoundHalfEven(2.675, 2), 2.67) << "the double lies below 2.675";
  EXPECT_EQ(RoundHalfEven(1.115, 2), 1.11) << "the double lies below 1.115";
  EXPECT_EQ(RoundHalfEven(0.145, 2), 0.14) << "the double lies below 0.145";
  EXPECT_EQ(RoundHalfEven(1.006, 2), 1.01);
  EXPECT_EQ(RoundHalfEven(0.1 + 0.2, 2), 0.3);
  EXPECT_EQ(RoundHalfEven(9.999, 2), 10);
  EXPECT_FALSE(std::signbit(RoundHalfEven(-0.001, 2)));
}

TEST(RoundHalfEven, LeavesANumberWithoutMorePlacesAsItIs) {
  EXPECT_EQ(RoundHalfEven(123456789012345.67, 2), 123456789012345.67);
  EXPECT_EQ(RoundHalfEven(-123456789012345.67, 2), -123456789012345.67);
  EXPECT_EQ(RoundHalfEven(1e300, 2), 1e300);
  EXPECT_EQ(RoundHalfEven(4503599627370495.5, 1), 4503599627370495.5);
  EXPECT_EQ(RoundHalfEven(1.005, 3), 1.005);
  EXPECT_EQ(RoundHalfEven(1e-20, 20), 1e-20);
  EXPECT_EQ(RoundHalfEven(1.7e-300, 301), 1.7e-300);
}

TEST(RoundHalfEven, ReturnsEveryAmountOfCentsUnchanged) {
  for (int cents = -300000; cents <= 300000; ++cents) {
    const double amount = cents / 100.0;
    ASSERT_EQ(RoundHalfEven(amount, 2), amount);
  }
  std::mt19937_64 random(4711);  // NOLINT(cert-msc51-cpp): the same numbers in every run
  for (int i = 0; i < 100000; ++i) {
    const std::uint64_t cents = random() % 100'000'000'000'000'000U;
    const std::string text =
        std::to_string(cents / 100) + "." + std::to_string(cents % 100 + 100).substr(1);
    const double amount = ToDouble(text, MonthFirst());
    ASSERT_EQ(RoundHalfEven(amount, 2), amount) << text;
  }
}

TEST(RoundHalfEven, ChangesEveryAmountWithAPlaceTooMany) {
  for (int thousandths = 1; thousandths < 1'000'000; ++thousandths) {
    if (thousandths % 10 == 0) continue;
    const double amount = thousandths / 1000.0;
    ASSERT_NE(RoundHalfEven(amount, 2), amount) << thousandths;
  }
}

TEST(RoundHalfEven, TakesAnyCountOfPlaces) {
  EXPECT_EQ(RoundHalfEven(1.5, 32767), 1.5);
  EXPECT_EQ(RoundHalfEven(5e-324, 323), 0);
  EXPECT_EQ(RoundHalfEven(5e-324, 324), 5e-324);
  EXPECT_EQ(RoundHalfEven(5e-324, 1074), 5e-324);
  EXPECT_EQ(RoundHalfEven(0.1, 100), 0.1);
  EXPECT_EQ(RoundHalfEven(9007199254740991.0, 1073), 9007199254740991.0);
  EXPECT_TRUE(ErrorOf([] { RoundHalfEven(1.5, -1); }).Is(ErrorNumber::InvalidProcedureCall));
}

TEST(RoundHalfEven, LeavesWhatIsntFinite) {
  EXPECT_EQ(RoundHalfEven(kOverflow, 2), kOverflow);
  EXPECT_TRUE(std::isnan(RoundHalfEven(kMismatch, 2)));
}

}  // namespace
}  // namespace rangewerks::tests
