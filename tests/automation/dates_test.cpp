#include <gtest/gtest.h>

#include <ctime>
#include <optional>
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
using automation::IsDate;
using automation::IsoDate;
using automation::Locale;
using automation::ToDate;
using automation::ToString;

struct DateRow {
  std::string text;
  std::string expected[3];  ///< as ISO 8601, by the order of AllLocales; empty for a mismatch

  DateRow(const char* t, const char* everywhere)
      : text(t), expected{everywhere, everywhere, everywhere} {}
  DateRow(const char* t, const char* monthFirst, const char* dayFirst, const char* yearFirst)
      : text(t), expected{monthFirst, dayFirst, yearFirst} {}
};

const std::vector<DateRow>& DateRows() {
  static const std::vector<DateRow> rows = {
      // order, and the other order when the first is impossible
      {"1/2/2024", "2024-01-02", "2024-02-01", "2024-01-02"},
      {"01/02/2024", "2024-01-02", "2024-02-01", "2024-01-02"},
      {"12/31/2024", "2024-12-31"},
      {"31/12/2024", "2024-12-31"},
      {"31/12/2099", "2099-12-31"},
      {"29/02/2024", "2024-02-29"},
      {"31/12/9999", "9999-12-31"},
      {"1/1/100", "0100-01-01"},
      // separators
      {"31.12.2024", "", "2024-12-31", ""},
      {"1.2.24", "", "2024-02-01", ""},
      {"31-12-2024", "2024-12-31"},
      {"31 12 2024", "2024-12-31"},
      {"31/12-2024", "2024-12-31"},
      {"31 / 12 / 2024", "2024-12-31"},
      {" 31/12/2024\t", "2024-12-31"},
      {"31,12,2024", ""},
      {"31//12/2024", ""},
      {"31_12_2024", ""},
      {"31\\12\\2024", ""},
      {"/31/12/2024", ""},
      {"31/12/2024/", ""},
      {"31/12/2024.", ""},
      {"31.12.", ""},
      {"31/12/", ""},
      // the year first
      {"2024-01-31", "2024-01-31"},
      {"2024/1/31", "2024-01-31"},
      {"2024.01.31", "", "2024-01-31", ""},
      {"2024 01 31", "2024-01-31"},
      {"2024-01-02", "2024-01-02"},
      {"2024-31-01", "2024-01-31"},
      {"2024-13-13", ""},
      {"12/2024/31", ""},
      // years of two digits
      {"1/2/29", "2029-01-02", "2029-02-01", ""},
      {"1/2/30", "1930-01-02", "1930-02-01", ""},
      {"1/2/3", "2003-01-02", "2003-02-01", "2001-02-03"},
      {"1/2/00", "2000-01-02", "2000-02-01", ""},
      {"24/12/13", "2013-12-24", "2013-12-24", "2024-12-13"},
      {"12/13/14", "2014-12-13", "2014-12-13", ""},
      {"13/14/15", ""},
      {"99/12/31", "", "", "1999-12-31"},
      {"32/01/24", "", "", "1932-01-24"},
      {"29/02/00", "2000-02-29", "2000-02-29", ""},
      // days that don't exist
      {"29/02/2021", ""},
      {"02/29/2021", ""},
      {"29/02/1900", ""},
      {"30/02/2024", ""},
      {"31/04/2024", ""},
      {"32/01/2024", ""},
      {"00/01/2024", ""},
      {"01/00/2024", ""},
      {"13/13/2024", ""},
      {"1/1/99999", ""},
      {"1/1/0099", ""},
      {"1/1/0000", ""},
      {"2024-00-10", ""},
      {"001/1/2024", ""},
      // names of months
      {"5 Jan 2024", "2024-01-05"},
      {"Jan 5 2024", "2024-01-05"},
      {"January 5, 2024", "2024-01-05"},
      {"Jan. 5, 2024", "2024-01-05"},
      {"5-Jan-2024", "2024-01-05"},
      {"5jan2024", "2024-01-05"},
      {"5. Jan. 2024", "2024-01-05"},
      {"JANUARY 5 2024", "2024-01-05"},
      {"2024 Jan 5", "2024-01-05"},
      {"2024 5 Jan", "2024-01-05"},
      {"5 Jan 24", "2024-01-05", "2024-01-05", "2005-01-24"},
      {"Jan 5 24", "2024-01-05"},
      {"5 May 2024", "2024-05-05"},
      {"5 Sept. 2024", "", "", "2024-09-05"},
      {"5. Mai 2024", "", "2024-05-05", ""},
      {"5 maj 2024", "", "", "2024-05-05"},
      {"5. März 2024", "", "2024-03-05", ""},
      {"5 MÄRZ 2024", "", "2024-03-05", ""},
      {"5 Okt 2024", "", "2024-10-05", "2024-10-05"},
      {"5. Dezember 2024", "", "2024-12-05", ""},
      {"31 Feb 2024", ""},
      {"31 Janu 2024", ""},
      {"5 Jan Feb", ""},
      {"Jan Feb 2024", ""},
      {"5 6 Jan", "", "", "2005-01-06"},
      {"Monday, 1 January 2024", ""},
      {"Mon 1 Jan 2024", ""},
      {"1st Jan 2024", ""},
      // a month alone
      {"5/2024", "2024-05-01"},
      {"2024/5", "2024-05-01"},
      {"Jan 2024", "2024-01-01"},
      {"2024 January", "2024-01-01"},
      {"13/2024", ""},
      {"5/45", "1945-05-01"},
      {"Jan 45", "1945-01-01"},
      {"Feb 0", "2000-02-01"},
      {"45/5", ""},
      {"2/30", ""},
      {"30 Feb", ""},
      {"Jan", ""},
      // what is only a number, or nothing
      {"", ""},
      {" ", ""},
      {"45000", ""},
      {"5", ""},
      {"-5", ""},
      {"1e5", ""},
      {"1,5", ""},
      {"5 6", ""},
      {"1,234,567", ""},
      {"1.234.567", ""},
      {"20240131", ""},
      {"abc", ""},
      {"N/A", ""},
      {"31/12/2024x", ""},
      {"x31/12/2024", ""},
      {"1/2/3/4", ""},
      {"1/2/2024 3", ""},
      {"31\u00A012\u00A02024", "2024-12-31"},
      {"\u202F31/12/2024\u2009", "2024-12-31"},
      // times
      {"13:45", "1899-12-30T13:45:00"},
      {"13:45:30", "1899-12-30T13:45:30"},
      {"1:5", "1899-12-30T01:05:00"},
      {"0:00", "1899-12-30"},
      {"23:59:59", "1899-12-30T23:59:59"},
      {"1:45 PM", "1899-12-30T13:45:00"},
      {"1:45pm", "1899-12-30T13:45:00"},
      {"1:45:30 am", "1899-12-30T01:45:30"},
      {"12:00 AM", "1899-12-30"},
      {"12:30 PM", "1899-12-30T12:30:00"},
      {"3 PM", "1899-12-30T15:00:00"},
      {"3PM", "1899-12-30T15:00:00"},
      {"24:00", ""},
      {"13:60", ""},
      {"13:45:60", ""},
      {"13:45:30:15", ""},
      {"13:45:30.5", ""},
      {"13:", ""},
      {":45", ""},
      {"-1:00", ""},
      {"111:00", ""},
      {"1:111", ""},
      {"99999999999999999999:00", ""},
      {"13:45 PM", "1899-12-30T13:45:00"},
      {"13:45 AM", ""},
      {"0:30 AM", "1899-12-30T00:30:00"},
      {"0:30 PM", "1899-12-30T12:30:00"},
      {"13 : 45 : 30", "1899-12-30T13:45:30"},
      {"13 PM", "1899-12-30T13:00:00"},
      {"24 PM", ""},
      {"PM", ""},
      {"3 XM", ""},
      {"3 PM PM", ""},
      // both
      {"12/31/2024 13:45", "2024-12-31T13:45:00"},
      {"12/31/2024   13:45", "2024-12-31T13:45:00"},
      {"13:45 12/31/2024", "2024-12-31T13:45:00"},
      {"31 12 2024 1:45:30 PM", "2024-12-31T13:45:30"},
      {"5 Jan 2024 3 PM", "2024-01-05T15:00:00"},
      {"3 PM January 5, 2024", "2024-01-05T15:00:00"},
      {"2024-01-31 00:00:00", "2024-01-31"},
      {"1850-12-24 06:00", "1850-12-24T06:00:00"},
      {"2024-01-31T13:45:00", ""},
      {"2024-01-31 24:00", ""},
      {"2024-01-31 13:45 x", ""},
      {"2024-01-31 13:45 2024-01-31", ""},
      {"13:45 13:45", ""},
      {"13:45 5", ""},
  };
  return rows;
}

std::string AsIso(const std::string& text, const Locale& locale) {
  return IsDate(text, locale) ? IsoDate(ToDate(text, locale)) : "";
}

TEST(TextToDate, FollowsTheLocale) {
  for (const DateRow& row : DateRows()) {
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_EQ(AsIso(row.text, AllLocales().at(i)), row.expected[i])
          << '"' << row.text << "\" in locale " << i;
    }
  }
}

TEST(TextToDate, RaisesAMismatchForWhatIsNoDate) {
  for (const DateRow& row : DateRows()) {
    for (std::size_t i = 0; i < 3; ++i) {
      if (!row.expected[i].empty()) continue;
      const auto error = ErrorOf([&] { ToDate(row.text, AllLocales().at(i)); });
      EXPECT_TRUE(error.Is(ErrorNumber::TypeMismatch)) << row.text;
    }
  }
}

int ThisYear() {
  const std::time_t now = std::time(nullptr);
  return std::localtime(&now)->tm_year + 1900;  // NOLINT(concurrency-mt-unsafe)
}

TEST(TextToDate, TakesTheCurrentYearWhereThereIsNone) {
  const int year = ThisYear();
  EXPECT_EQ(ToDate("1/2", MonthFirst()), DateOf(year, 1, 2));
  EXPECT_EQ(ToDate("1/2", DayFirst()), DateOf(year, 2, 1));
  EXPECT_EQ(ToDate("1/2", YearFirst()), DateOf(year, 1, 2));
  EXPECT_EQ(ToDate("31/12", MonthFirst()), DateOf(year, 12, 31));
  EXPECT_EQ(ToDate("1.2", DayFirst()), DateOf(year, 2, 1));
  EXPECT_EQ(ToDate("5 Jan", MonthFirst()), DateOf(year, 1, 5));
  EXPECT_EQ(ToDate("Jan 5", DayFirst()), DateOf(year, 1, 5));
  EXPECT_EQ(ToDate("5 Dez.", DayFirst()), DateOf(year, 12, 5));
  EXPECT_EQ(ToDate("5 Jan 06:00", YearFirst()).serial, DateOf(year, 1, 5).serial + 0.25);
}

TEST(TextToDate, TakesTwoDigitsForAYearOfTheHundredThatTheLocaleEndsWithItsLast) {
  Locale locale = MonthFirst();
  locale.lastTwoDigitYear = 2049;
  EXPECT_EQ(IsoDate(ToDate("1/2/00", locale)), "2000-01-02");
  EXPECT_EQ(IsoDate(ToDate("1/2/49", locale)), "2049-01-02");
  EXPECT_EQ(IsoDate(ToDate("1/2/50", locale)), "1950-01-02");
  EXPECT_EQ(IsoDate(ToDate("Jan 45", locale)), "2045-01-01");
  locale.lastTwoDigitYear = 1999;
  EXPECT_EQ(IsoDate(ToDate("1/2/00", locale)), "1900-01-02");
  EXPECT_EQ(IsoDate(ToDate("1/2/99", locale)), "1999-01-02");
}

TEST(TextToDate, ReadsNumbersWithPointsWhereTheSeparatorOfDatesStartsWithAPoint) {
  Locale locale = DayFirst();
  locale.dateSeparator = ". ";
  EXPECT_EQ(IsoDate(ToDate("31. 12. 2024", locale)), "2024-12-31");
  EXPECT_EQ(IsoDate(ToDate("31.12.2024", locale)), "2024-12-31");
}

TEST(TextToDate, ReadsTwoNumbersWithAPointAsDateOnlyWhereThePointSeparatesDates) {
  EXPECT_FALSE(IsDate("1.5", MonthFirst()));
  EXPECT_FALSE(IsDate("1.5", YearFirst()));
  EXPECT_TRUE(IsDate("1.5", DayFirst()));
}

TEST(TextToDate, UnderstandsTheTimeSeparatorOfTheLocale) {
  Locale locale = DayFirst();
  locale.timeSeparator = ".";
  EXPECT_EQ(IsoDate(ToDate("31.12.2024 13.45.30", locale)), "2024-12-31T13:45:30");
  EXPECT_EQ(IsoDate(ToDate("13.45", locale)), "1899-12-30T13:45:00");
  EXPECT_EQ(IsoDate(ToDate("31.12.2024 13:45", locale)), "2024-12-31T13:45:00");
}

TEST(TextToDate, UnderstandsSeparatorsOfSeveralCharacters) {
  Locale locale = YearFirst();
  locale.dateSeparator = ". ";
  locale.shortDate = "yyyy/mm/dd\\.";
  EXPECT_EQ(IsoDate(ToDate("2024. 01. 31.", locale)), "2024-01-31");
  EXPECT_EQ(IsoDate(ToDate("2024. 01. 31", locale)), "2024-01-31");
  EXPECT_FALSE(IsDate("2024. 01. 31..", locale));
}

TEST(TextToDate, NeverTakesAnEmptyNameOfALocaleForAMonth) {
  Locale locale;
  locale.monthNames.fill("");
  locale.shortMonthNames.fill(".");
  EXPECT_FALSE(IsDate("5  2024", locale));
  EXPECT_FALSE(IsDate("5 . 2024", locale));
  EXPECT_EQ(IsoDate(ToDate("5 Jan 2024", locale)), "2024-01-05");
}

TEST(SerialNumbers, CountDaysSinceThirtiethOfDecember1899) {
  EXPECT_EQ(DateOf(1899, 12, 30).serial, 0);
  EXPECT_EQ(DateOf(1899, 12, 31).serial, 1);
  EXPECT_EQ(DateOf(1900, 1, 1).serial, 2);
  EXPECT_EQ(DateOf(1900, 3, 1).serial, 61);
  EXPECT_EQ(DateOf(2024, 1, 31).serial, 45322);
  EXPECT_EQ(DateOf(1899, 12, 29).serial, -1);
  EXPECT_EQ(DateOf(100, 1, 1).serial, -657434);
  EXPECT_EQ(DateOf(9999, 12, 31).serial, 2958465);
}

TEST(SerialNumbers, CountTheTimeForwardOnEitherSideOfDayZero) {
  EXPECT_EQ(ToDate("1899-12-31 06:00", YearFirst()).serial, 1.25);
  EXPECT_EQ(ToDate("1899-12-29 06:00", YearFirst()).serial, -1.25);
  EXPECT_EQ(IsoDate(Date{-1.25}), "1899-12-29T06:00:00");
  EXPECT_EQ(IsoDate(Date{-1.75}), "1899-12-29T18:00:00");
  EXPECT_EQ(IsoDate(Date{-0.25}), "1899-12-30T06:00:00");
  EXPECT_EQ(IsoDate(Date{-657434.75}), "0100-01-01T18:00:00");
}

TEST(SerialNumbers, AreDatesWithinTheirRange) {
  EXPECT_EQ(ToDate(2958465.5, Locale()).serial, 2958465.5);
  EXPECT_EQ(ToDate(-657434.5, Locale()).serial, -657434.5);
  for (const double serial : {2958466.0, -657435.0, 1e300, -1e300}) {
    EXPECT_TRUE(ErrorOf([&] { ToDate(serial, Locale()); }).Is(ErrorNumber::Overflow)) << serial;
    EXPECT_TRUE(ErrorOf([&] { IsoDate(Date{serial}); }).Is(ErrorNumber::Overflow)) << serial;
  }
}

TEST(SerialNumbers, AreTakenToTheNearestSecond) {
  EXPECT_EQ(IsoDate(Date{45322 + 0.4 / 86400}), "2024-01-31");
  EXPECT_EQ(IsoDate(Date{45322 + 0.6 / 86400}), "2024-01-31T00:00:01");
  EXPECT_EQ(IsoDate(Date{45323 - 0.4 / 86400}), "2024-02-01");
  EXPECT_EQ(IsoDate(Date{-1 - 86399.6 / 86400}), "1899-12-30");
  EXPECT_EQ(IsoDate(Date{2958465 + 86399.6 / 86400}), "9999-12-31T23:59:59") << "no later day";
}

TEST(DateOf, RefusesDaysThatDontExist) {
  const std::vector<std::vector<int>> days = {
      {2021, 2, 29}, {2024, 2, 30}, {2024, 13, 1},  {2024, 0, 1},   {2024, 1, 0},   {2024, 1, -1},
      {99, 12, 31},  {10000, 1, 1}, {2024, 257, 1}, {2024, 1, 257}, {2024, -255, 1}};
  for (const auto& day : days) {
    EXPECT_TRUE(ErrorOf([&] { DateOf(day[0], day[1], day[2]); }).Is(ErrorNumber::TypeMismatch));
  }
}

TEST(DateToText, IsShortDateAndLongTime) {
  const Date day = DateOf(2024, 1, 5);
  EXPECT_EQ(ToString(day, MonthFirst()), "1/5/2024");
  EXPECT_EQ(ToString(day, DayFirst()), "05.01.2024");
  EXPECT_EQ(ToString(day, YearFirst()), "2024-01-05");
  const Date afternoon{day.serial + 13.75 / 24};
  EXPECT_EQ(ToString(afternoon, MonthFirst()), "1/5/2024 1:45:00 PM");
  EXPECT_EQ(ToString(afternoon, DayFirst()), "05.01.2024 13:45:00");
}

TEST(DateToText, IsTheTimeAloneOnDayZero) {
  EXPECT_EQ(ToString(Date{0}, MonthFirst()), "12:00:00 AM");
  EXPECT_EQ(ToString(Date{0}, DayFirst()), "00:00:00");
  EXPECT_EQ(ToString(Date{0.5}, MonthFirst()), "12:00:00 PM");
  EXPECT_EQ(ToString(Date{1}, MonthFirst()), "12/31/1899");
}

TEST(DateToText, IsReadBackForEveryDayOfTheCalendar) {
  for (const Locale& locale : AllLocales()) {
    for (int serial = -657434; serial <= 2958465; ++serial) {
      const Date date{static_cast<double>(serial)};
      if (serial == 0) continue;  // its text is a time
      ASSERT_EQ(ToDate(ToString(date, locale), locale), date) << serial;
    }
  }
}

TEST(DateToText, IsReadBackForEverySecondOfADay) {
  for (const Locale& locale : AllLocales()) {
    for (const int day : {-3, 0, 45322}) {
      for (int second = 0; second < 86400; second += 7) {
        const double fraction = second / 86400.0;
        const Date date{day < 0 ? day - fraction : day + fraction};
        ASSERT_EQ(ToDate(ToString(date, locale), locale), date) << second;
      }
    }
  }
}

}  // namespace
}  // namespace rangewerks::tests
