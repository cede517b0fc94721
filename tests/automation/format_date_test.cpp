#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "automation/conversions.h"
#include "automation/locales.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::DateOf;
using automation::ErrorNumber;
using automation::FormatDate;
using automation::FormatDateText;
using automation::IsoDate;

/// Tuesday, 5 March 2024, 15:04:09.
Date Afternoon() { return {DateOf(2024, 3, 5).serial + (15 * 3600 + 4 * 60 + 9) / 86400.0}; }
/// Friday, 31 December 1999, 00:30:00.
Date AfterMidnight() { return {DateOf(1999, 12, 31).serial + 30.0 / (24 * 60)}; }

using Rows = std::vector<std::pair<std::string, std::string>>;

void ExpectAll(Date date, const Rows& rows, const automation::Locale& locale) {
  for (const auto& [pattern, expected] : rows) {
    EXPECT_EQ(FormatDate(date, pattern, locale), expected) << pattern;
  }
}

TEST(FormatDate, WritesDaysMonthsAndYears) {
  ExpectAll(Afternoon(),
            {{"d", "5"},
             {"dd", "05"},
             {"ddd", "Tue"},
             {"dddd", "Tuesday"},
             {"m", "3"},
             {"mm", "03"},
             {"mmm", "Mar"},
             {"mmmm", "March"},
             {"yy", "24"},
             {"yyyy", "2024"},
             {"dd/mm/yyyy", "05/03/2024"},
             {"mm/dd/yyyy", "03/05/2024"},
             {"yyyy/mm/dd", "2024/03/05"},
             {"ddmmyy", "050324"},
             {"", ""}},
            MonthFirst());
}

TEST(FormatDate, WritesTimes) {
  ExpectAll(Afternoon(),
            {{"h", "15"},
             {"hh", "15"},
             {"n", "4"},
             {"nn", "04"},
             {"s", "9"},
             {"ss", "09"},
             {"h:nn AM/PM", "3:04 PM"},
             {"AM/PM hh", "PM 03"},
             {"hh:nn:ss", "15:04:09"}},
            MonthFirst());
  ExpectAll(AfterMidnight(), {{"h:nn AM/PM", "12:30 AM"}, {"h:nn", "0:30"}, {"hh", "00"}},
            MonthFirst());
}

TEST(FormatDate, TakesMonthsRightAfterHoursForMinutes) {
  ExpectAll(Afternoon(),
            {{"h:m", "15:4"},
             {"hh:mm", "15:04"},
             {"hh\" o'clock \"mm", "15 o'clock 04"},
             {"hh:mm mm", "15:04 03"},
             {"mm hh", "03 15"},
             {"hh:ss mm", "15:09 03"},
             {"hhmm", "1504"}},
            MonthFirst());
}

TEST(FormatDate, TakesLettersInEitherCase) {
  ExpectAll(Afternoon(),
            {{"DD/MM/YYYY", "05/03/2024"},
             {"Dd/mM/yYyY", "05/03/2024"},
             {"HH:MM:SS am/pm", "03:04:09 pm"},
             {"h aM/pM", "3 pm"},
             {"h Am/PM", "3 PM"},
             {"MMMM", "March"}},
            MonthFirst());
}

TEST(FormatDate, KeepsWhatIsQuotedOrBehindABackslash) {
  ExpectAll(Afternoon(),
            {{"\"day\" d", "day 5"},
             {"\\d d", "d 5"},
             {"yyyy\\/mm", "2024/03"},
             {"\\\"d", "\"5"},
             {"\"\"d", "5"},
             {"d \"open", "5 open"},
             {"d\\", "5"},
             {"\"AM/PM\" h", "AM/PM 15"},
             {"\\\\", "\\"}},
            MonthFirst());
}

TEST(FormatDate, KeepsAnyOtherCharacter) {
  ExpectAll(Afternoon(), {{"d.m.", "5.3."}, {"d (x) ö", "5 (x) ö"}, {"y", "y"}}, MonthFirst());
}

TEST(FormatDate, SplitsLongerRunsOfALetter) {
  ExpectAll(Afternoon(), {{"ddddd", "Tuesday5"}, {"hhh", "1515"}, {"yyyyyy", "202424"}},
            MonthFirst());
}

TEST(FormatDate, WritesNamesAndSeparatorsOfTheLocale) {
  ExpectAll(Afternoon(),
            {{"dd/mm/yyyy", "05.03.2024"},
             {"dddd, d. mmmm yyyy", "Dienstag, 5. März 2024"},
             {"ddd mmm", "Di Mär"}},
            DayFirst());
  automation::Locale locale;
  locale.timeSeparator = ".";
  ExpectAll(Afternoon(), {{"hh:mm", "15.04"}}, locale);
}

TEST(FormatDate, WritesYearsWithFourDigits) {
  EXPECT_EQ(FormatDate(DateOf(100, 1, 1), "yyyy", MonthFirst()), "0100");
  EXPECT_EQ(FormatDate(DateOf(100, 1, 1), "yy", MonthFirst()), "00");
}

TEST(FormatDate, RaisesAnOverflowOutsideOfTheCalendar) {
  EXPECT_TRUE(ErrorOf([] { FormatDate(Date{3e6}, "d", MonthFirst()); }).Is(ErrorNumber::Overflow));
}

TEST(FormatDateText, RewritesATextThatReadsAsDate) {
  EXPECT_EQ(FormatDateText("1/2/24", "mm/dd/yyyy", MonthFirst()), "01/02/2024");
  EXPECT_EQ(FormatDateText("1/2/24", "dd/mm/yyyy", DayFirst()), "01.02.2024");
  EXPECT_EQ(FormatDateText("31/12/2099", "mm/dd/yyyy", MonthFirst()), "12/31/2099");
  EXPECT_EQ(FormatDateText("13:45", "dd/mm/yyyy", MonthFirst()), "30/12/1899");
}

TEST(FormatDateText, LeavesAnyOtherTextAsItIs) {
  EXPECT_EQ(FormatDateText("soon", "dd/mm/yyyy", MonthFirst()), "soon");
  EXPECT_EQ(FormatDateText("45000", "dd/mm/yyyy", MonthFirst()), "45000");
  EXPECT_EQ(FormatDateText("29/02/2021", "dd/mm/yyyy", MonthFirst()), "29/02/2021");
  EXPECT_EQ(FormatDateText("", "dd/mm/yyyy", MonthFirst()), "");
}

TEST(FormatDateText, LeavesEveryTextWhenThePatternIsEmpty) {
  EXPECT_EQ(FormatDateText("1/2/24", "", MonthFirst()), "1/2/24");
}

TEST(IsoDate, WritesTheTimeOnlyWhenThereIsOne) {
  EXPECT_EQ(IsoDate(DateOf(2024, 1, 31)), "2024-01-31");
  EXPECT_EQ(IsoDate(Afternoon()), "2024-03-05T15:04:09");
  EXPECT_EQ(IsoDate(DateOf(100, 1, 1)), "0100-01-01");
}

}  // namespace
}  // namespace rangewerks::tests
