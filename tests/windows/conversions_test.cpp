#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "automation/conversions.h"
#include "automation/error.h"
#include "systems/windows/locale_facts.h"
#include "windows/conversion_differences.h"
#include "windows/conversion_texts.h"
#include "windows/platform_conversions.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::Locale;
using automation::Variant;

/// Month first; day first with points; day first with slashes and digits grouped with blanks.
constexpr const wchar_t* kLocales[] = {L"en-US", L"de-DE", L"fr-FR"};

Outcome AsOutcome(std::string text) { return Outcome::OfText(std::move(text)); }
Outcome AsOutcome(Date date) { return Outcome::OfNumber(date.serial); }
/// True is -1, as the platform has it.
Outcome AsOutcome(bool truth) { return Outcome::OfNumber(truth ? -1 : 0); }
template <class Number>
Outcome AsOutcome(Number number) {
  return Outcome::OfNumber(static_cast<double>(number));
}

/// What an action of ours makes, or the number of the error that it raises.
template <class Action>
Outcome OutcomeOf(const Action& action) {
  try {
    return AsOutcome(action());
  } catch (const automation::Error& error) {
    return Outcome::OfFailure(error.Number());
  }
}

/// Compares everything once, and keeps what differs.
class Comparison {
 public:
  Comparison() {
    const auto texts = AllTexts();
    texts_ = texts.size();
    for (const wchar_t* const name : kLocales) {
      const Locale locale = systems::ReadLocale(name);
      const PlatformConversions platform(name);
      for (const std::string& text : texts) CompareText(text, locale, platform);
      for (const double number : BorderNumbers()) CompareNumber(number, locale, platform);
      for (const double serial : BorderDates()) CompareDate(serial, locale, platform);
    }
  }

  std::size_t Texts() const { return texts_; }
  std::size_t Compared() const { return compared_; }
  const std::vector<std::string>& Unlisted() const { return unlisted_; }
  /// Texts of which IsNumeric or IsDate says other than the conversions.
  const std::vector<std::string>& Misjudged() const { return misjudged_; }
  /// The listed differences that explain a case which no other explains.
  const std::set<std::string>& Needed() const { return needed_; }

 private:
  static std::set<std::string> AllTexts() {
    std::set<std::string> all;
    for (const auto& texts : {NumberTexts(), DateTexts(), OtherTexts()}) {
      all.insert(texts.begin(), texts.end());
    }
    return all;
  }

  void CompareText(const std::string& text, const Locale& locale,
                   const PlatformConversions& platform) {
    const auto compare = [&](Conversion conversion, const Outcome& ours, const Outcome& theirs) {
      Compare({conversion, locale, text, 0, ours, theirs});
    };
    const Variant value(text);
    const Outcome number = OutcomeOf([&] { return ToDouble(value, locale); });
    const Outcome date = OutcomeOf([&] { return ToDate(value, locale); });
    if (IsNumeric(value, locale) != number.IsValue() || IsDate(value, locale) != date.IsValue()) {
      misjudged_.push_back(text);
    }
    compare(Conversion::DoubleOfText, number, platform.DoubleOf(text));
    compare(Conversion::DateOfText, date, platform.DateOf(text));
    compare(Conversion::IntegerOfText, OutcomeOf([&] { return ToInteger(value, locale); }),
            platform.IntegerOf(text));
    compare(Conversion::LongOfText, OutcomeOf([&] { return ToLong(value, locale); }),
            platform.LongOf(text));
    compare(Conversion::BooleanOfText, OutcomeOf([&] { return ToBoolean(value, locale); }),
            platform.BooleanOf(text));
  }

  void CompareNumber(double number, const Locale& locale, const PlatformConversions& platform) {
    const auto compare = [&](Conversion conversion, const Outcome& ours, const Outcome& theirs) {
      Compare({conversion, locale, "", number, ours, theirs});
    };
    const Variant value(number);
    compare(Conversion::TextOfDouble, OutcomeOf([&] { return ToString(value, locale); }),
            platform.TextOf(number));
    compare(Conversion::IntegerOfDouble, OutcomeOf([&] { return ToInteger(value, locale); }),
            platform.IntegerOf(number));
    compare(Conversion::LongOfDouble, OutcomeOf([&] { return ToLong(value, locale); }),
            platform.LongOf(number));
    compare(Conversion::BooleanOfDouble, OutcomeOf([&] { return ToBoolean(value, locale); }),
            platform.BooleanOf(number));
    compare(Conversion::DateOfDouble, OutcomeOf([&] { return ToDate(value, locale); }),
            platform.DateOf(number));
  }

  void CompareDate(double serial, const Locale& locale, const PlatformConversions& platform) {
    const Date date{serial};
    Compare({Conversion::TextOfDate, locale, "", serial,
             OutcomeOf([&] { return ToString(date, locale); }), platform.TextOfDate(serial)});
    for (const std::string& pattern : DatePatterns()) {
      Compare({Conversion::FormattedDate, locale, pattern, serial,
               OutcomeOf([&] { return FormatDate(date, pattern, locale); }),
               platform.FormattedDate(serial, pattern)});
    }
  }

  void Compare(const Case& c) {
    ++compared_;
    if (c.ours == c.theirs) return;
    std::vector<const char*> explanations;
    for (const Difference& difference : ListedDifferences()) {
      if (difference.explains(c)) explanations.push_back(difference.name);
    }
    if (explanations.size() == 1) needed_.insert(explanations.front());
    if (!explanations.empty()) return;
    std::ostringstream words;
    words << c;
    unlisted_.push_back(words.str());
  }

  std::size_t texts_ = 0;
  std::size_t compared_ = 0;
  std::vector<std::string> unlisted_;
  std::vector<std::string> misjudged_;
  std::set<std::string> needed_;
};

const Comparison& Compared() {
  static const Comparison comparison;
  return comparison;
}

TEST(ConversionsBesideThePlatforms, AreComparedOverThousandsOfTexts) {
  EXPECT_GE(Compared().Texts(), 10000U);
  EXPECT_GE(Compared().Compared(), 300000U);
}

TEST(ConversionsBesideThePlatforms, DifferOnlyWhereListed) {
  constexpr std::size_t kMostShown = 40;
  std::size_t shown = 0;
  for (const std::string& words : Compared().Unlisted()) {
    if (++shown > kMostShown) break;
    ADD_FAILURE() << words;
  }
  EXPECT_EQ(Compared().Unlisted().size(), 0U);
}

TEST(ConversionsBesideThePlatforms, DifferWhereverListed) {
  for (const Difference& difference : ListedDifferences()) {
    EXPECT_TRUE(Compared().Needed().contains(difference.name))
        << difference.name << " no longer happens; it was listed because: " << difference.reason;
  }
}

TEST(ConversionsBesideThePlatforms, AreForetoldByIsNumericAndIsDate) {
  EXPECT_EQ(Compared().Misjudged(), std::vector<std::string>());
}

TEST(ConversionsBesideThePlatforms, WriteWholeNumbersAndBooleansAlike) {
  for (const wchar_t* const name : kLocales) {
    const Locale locale = systems::ReadLocale(name);
    const PlatformConversions platform(name);
    for (const std::int32_t number : {0, 1, -1, 1234, 1234567, std::numeric_limits<int>::max(),
                                      std::numeric_limits<int>::min()}) {
      EXPECT_EQ(Outcome::OfText(ToString(number, locale)), platform.TextOf(number));
    }
    for (const std::int16_t number :
         {std::int16_t{0}, std::int16_t{-1}, std::int16_t{32767}, std::int16_t{-32768}}) {
      EXPECT_EQ(Outcome::OfText(ToString(number, locale)), platform.TextOf(number));
    }
    for (const bool truth : {false, true}) {
      EXPECT_EQ(Outcome::OfText(ToString(truth, locale)), platform.TextOf(truth));
    }
  }
}

TEST(ConversionsBesideThePlatforms, TellAlikeWhetherAnAmountHasItsDecimalPlaces) {
  constexpr double kGreatest = 1e13;  // where the platform's multiplying begins to lose digits
  for (const double number : BorderNumbers()) {
    if (!(std::abs(number) < kGreatest)) continue;
    for (const int places : {0, 2, 3}) {
      EXPECT_EQ(automation::RoundHalfEven(number, places) == number,
                PlatformConversions::Rounded(number, places).number == number)
          << number << " to " << places;
    }
  }
}

}  // namespace
}  // namespace rangewerks::tests
