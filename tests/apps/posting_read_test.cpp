#include "apps/rangewerks/posting_read.h"

#include <gtest/gtest.h>

#include "automation/conversions.h"
#include "support/sheet_fixture.h"

namespace rangewerks::apps {
namespace {

using automation::DateOf;
using automation::Variant;

class PostingReadFromASheet : public tests::SheetFixture {
 protected:
  /// Declares a range and gives it an area on the list's sheet.
  clsInterfaceRangeList::Record Place(const std::string& name, const std::string& area,
                                      eRangeHeadDetailInd indicator, eRangeDataType type) const {
    Define(name, "=Sheet1!" + area);
    return Declare(name, indicator, type);
  }
  PostingRead Read() { return ReadPosting(*list, Sheet("Sheet1")); }
};

TEST_F(PostingReadFromASheet, ReadsHeaderAndDetailByTheirTypes) {
  Place("batch", "$B$1", hdiHeader, rdtString);
  Place("posting_date", "$B$2", hdiHeader, rdtDate);
  Place("amount", "$A$5:$A$6", hdiDetail, rdtDouble);
  Place("quantity", "$B$5:$B$6", hdiDetail, rdtInteger);
  Place("reverse", "$C$5:$C$6", hdiDetail, rdtYesNo);
  Put("B1", "JNL-7");
  Put("B2", DateOf(2024, 1, 31));
  Put("A5", 12.5);
  Put("A6", -0.1);
  Put("B5", 3.0);
  Put("B6", 4.0);
  Put("C5", "Yes");
  Put("C6", "n");

  const PostingRead posting = Read();
  EXPECT_EQ(posting.sheet, "Sheet1");
  EXPECT_TRUE(posting.badCells.empty());
  ASSERT_EQ(posting.header.size(), 2U);
  EXPECT_TRUE(posting.header[0].found);
  EXPECT_EQ(posting.header[0].value, Variant("JNL-7"));
  EXPECT_EQ(posting.header[1].value, Variant(DateOf(2024, 1, 31)));
  ASSERT_EQ(posting.rows.size(), 2U);
  EXPECT_EQ(posting.rows[0].row, 1);
  EXPECT_EQ(posting.rows[0].values[0].value, Variant(12.5));
  EXPECT_EQ(posting.rows[0].values[1].value, Variant(std::int16_t{3}));
  EXPECT_EQ(posting.rows[0].values[2].value, Variant(true));
  EXPECT_EQ(posting.rows[1].row, 2);
  EXPECT_EQ(posting.rows[1].values[0].value, Variant(-0.1));
  EXPECT_EQ(posting.rows[1].values[2].value, Variant(false));
}

TEST_F(PostingReadFromASheet, TellsWhereEachRangeLies) {
  Place("batch", "$B$1", hdiHeader, rdtString);
  Place("amount", "$A$5:$A$14", hdiDetail, rdtDouble);
  Declare("project", hdiDetail, rdtString);

  const PostingRead posting = Read();
  ASSERT_EQ(posting.ranges.size(), 3U);
  EXPECT_TRUE(posting.ranges[0].exists);
  EXPECT_EQ(posting.ranges[0].address, "B1");
  EXPECT_EQ(posting.ranges[0].rows, 1);
  EXPECT_TRUE(posting.ranges[0].actsAsHeader);
  EXPECT_EQ(posting.ranges[1].address, "A5:A14");
  EXPECT_EQ(posting.ranges[1].rows, 10);
  EXPECT_FALSE(posting.ranges[1].actsAsHeader);
  EXPECT_FALSE(posting.ranges[2].exists);
  EXPECT_EQ(posting.ranges[2].address, "");
  EXPECT_EQ(posting.ranges[2].rows, 0);
}

TEST_F(PostingReadFromASheet, RunsToTheLongestDetailRangeAndReadsNoRangeBeyondItsEnd) {
  Place("code", "$A$1:$A$2", hdiDetail, rdtString);
  Place("amount", "$B$1:$B$3", hdiDetail, rdtDouble);
  Put("A1", "a");
  Put("A2", "b");
  Put("A3", "below the range");
  Put("B3", 7.0);

  const PostingRead posting = Read();
  ASSERT_EQ(posting.rows.size(), 3U);
  EXPECT_EQ(posting.rows[1].values[0].value, Variant("b"));
  EXPECT_FALSE(posting.rows[2].values[0].found);
  EXPECT_TRUE(posting.rows[2].values[0].value.IsEmpty());
  EXPECT_EQ(posting.rows[2].values[1].value, Variant(7.0));
}

TEST_F(PostingReadFromASheet, ARangeOfOneRowThatMayBeAHeaderIsReadAsOne) {
  Place("department", "$B$1", hdiHeaderDetail, rdtString)->let_CanBeHeader(true);
  Place("code", "$A$5:$A$6", hdiDetail, rdtString);
  Put("B1", "100");

  const PostingRead posting = Read();
  ASSERT_EQ(posting.headers, std::vector<std::size_t>{0});
  EXPECT_EQ(posting.details, std::vector<std::size_t>{1});
  EXPECT_TRUE(posting.ranges[0].actsAsHeader);
  EXPECT_EQ(posting.header[0].value, Variant("100"));
}

TEST_F(PostingReadFromASheet, AHeaderDetailRangeIsDetailUnlessItMayBeAHeader) {
  Place("department", "$B$1", hdiHeaderDetail, rdtString);
  const PostingRead posting = Read();
  EXPECT_TRUE(posting.headers.empty());
  EXPECT_EQ(posting.details, std::vector<std::size_t>{0});
  EXPECT_EQ(posting.rows.size(), 1U);
}

TEST_F(PostingReadFromASheet, ARangeDeclaredAsNeitherIsLocatedAndNotRead) {
  Place("note", "$B$1:$B$4", hdiNone, rdtString);
  const PostingRead posting = Read();
  EXPECT_EQ(posting.ranges[0].address, "B1:B4");
  EXPECT_TRUE(posting.headers.empty());
  EXPECT_TRUE(posting.details.empty());
  EXPECT_TRUE(posting.rows.empty());
}

TEST_F(PostingReadFromASheet, ABlankCellIsNotFoundAndHasNoValue) {
  Place("amount", "$A$1", hdiHeader, rdtDouble);
  PostingRead posting = Read();
  EXPECT_FALSE(posting.header[0].found);
  EXPECT_TRUE(posting.header[0].value.IsEmpty());

  list->let_BlankRangeIsThere(true);
  posting = Read();
  EXPECT_TRUE(posting.header[0].found);
  EXPECT_EQ(posting.header[0].value, Variant(0.0));
}

TEST_F(PostingReadFromASheet, ABadCellIsNotedOnceWithItsPlaceAndReadingGoesOn) {
  Place("amount", "$B$5:$B$7", hdiDetail, rdtDouble)->let_Description("Amount");
  Put("B5", 1.0);
  Put("B6", "12,5x");
  Put("B7", 3.0);

  const PostingRead posting = Read();
  ASSERT_EQ(posting.badCells.size(), 1U);
  const BadCell& bad = posting.badCells[0];
  EXPECT_EQ(bad.range, "amount");
  EXPECT_EQ(bad.row, 2);
  EXPECT_EQ(bad.address, "B6");
  EXPECT_EQ(bad.content, "12,5x");
  EXPECT_EQ(bad.number, -2147216004);
  EXPECT_EQ(bad.description, "Invalid data in range 'Amount' (amount)");
  EXPECT_NE(bad.source.find("GetValRange of Class Module clsInterfaceRangeList Line#:"),
            std::string::npos)
      << bad.source;
  EXPECT_FALSE(posting.rows[1].values[0].found);
  EXPECT_EQ(posting.rows[1].values[0].badCell, 0U);
  EXPECT_TRUE(posting.rows[1].values[0].value.IsEmpty());
  EXPECT_EQ(posting.rows[2].values[0].value, Variant(3.0));
}

TEST_F(PostingReadFromASheet, NotesEveryKindOfBadCell) {
  list->let_ValidateDecimalPlaces(true);
  Place("amount", "$A$1:$A$2", hdiDetail, rdtDouble);
  Place("date", "$B$1:$B$2", hdiDetail, rdtDate);
  Place("quantity", "$C$1:$C$2", hdiDetail, rdtInteger);
  Place("reverse", "$D$1:$D$2", hdiDetail, rdtYesNo);
  Place("code", "$E$1:$E$2", hdiDetail, rdtString);
  Put("A1", 1.005);
  host.SetErrorValue(Cells("A2"), 2007);
  Put("B1", "31/02/2024");
  Put("C1", 32768.0);
  Put("D1", "maybe");
  host.SetErrorValue(Cells("E1"), 2042);

  const PostingRead posting = Read();
  const auto summary = [&](std::size_t index) {
    const BadCell& bad = posting.badCells.at(index);
    return bad.address + " " + std::to_string(bad.number) + " " + bad.description + " [" +
           bad.content + "]";
  };
  ASSERT_EQ(posting.badCells.size(), 6U);
  EXPECT_EQ(summary(0), "A1 -2147216003 More than 2 Decimal places are not allowed [1.005]");
  EXPECT_EQ(summary(1), "B1 -2147216004 Invalid date in range date [31/02/2024]");
  EXPECT_EQ(summary(2), "C1 6 Overflow [32768]");
  EXPECT_EQ(summary(3), "D1 -2147216004 Invalid entry in Y/N range [maybe]");
  EXPECT_EQ(summary(4), "E1 13 Type mismatch [#N/A]");
  EXPECT_EQ(summary(5), "A2 -2147216004 Invalid data in range '' (amount) [#DIV/0!]");
}

TEST_F(PostingReadFromASheet, ABadHeaderCellHasRow0AsTheListTellsIt) {
  Place("period", "$B$1", hdiHeader, rdtDouble);
  Place("rate", "$B$2", hdiHeaderDetail, rdtDouble)->let_CanBeHeader(true);
  Put("B1", "first");
  Put("B2", "high");
  const PostingRead posting = Read();
  ASSERT_EQ(posting.badCells.size(), 2U);
  EXPECT_EQ(posting.badCells[0].row, 0);
  EXPECT_EQ(posting.badCells[1].row, 1);
}

TEST_F(PostingReadFromASheet, SeesOnlyItsOwnNamesUnderTheSheetScheme) {
  list->let_SheetRangeNames(true);
  list->let_RangePrefix("P_");
  Define("Sheet1__P_amount", "=Sheet1!$A$1:$A$2");
  Define("Sheet2__P_amount", "=Sheet2!$A$1:$A$5");
  Define("Sheet2__P_code", "=Sheet2!$B$1");
  Declare("amount", hdiDetail, rdtDouble);
  Declare("code", hdiHeader, rdtString);

  const PostingRead posting = Read();
  EXPECT_TRUE(posting.usingSheetRangeNames);
  EXPECT_EQ(posting.ranges[0].address, "A1:A2");
  EXPECT_EQ(posting.ranges[0].lookedForAs, "Sheet1__P_amount");
  EXPECT_FALSE(posting.ranges[1].exists);
  EXPECT_EQ(posting.ranges[1].lookedForAs, "Sheet1__P_code");
}

TEST_F(PostingReadFromASheet, PlainNamesWithAPrefixNeedTheNameWithoutItToo) {
  list->let_RangePrefix("P_");
  Define("P_amount", "=Sheet1!$A$1:$A$2");
  Define("amount", "=Sheet1!$A$1:$A$2");
  Define("P_code", "=Sheet1!$B$1");
  Declare("amount", hdiDetail, rdtDouble);
  Declare("code", hdiHeader, rdtString);

  const PostingRead posting = Read();
  EXPECT_EQ(posting.ranges[0].lookedForAs, "P_amount");
  EXPECT_EQ(posting.ranges[0].address, "A1:A2");
  EXPECT_TRUE(posting.ranges[1].exists);
  EXPECT_EQ(posting.ranges[1].address, "");
  ASSERT_EQ(posting.badCells.size(), 1U);
  EXPECT_EQ(posting.badCells[0].description,
            "Error finding area on sheet referred to by range: code (Full name:code).");
  EXPECT_EQ(posting.badCells[0].address, "");
}

TEST_F(PostingReadFromASheet, ADetailRangeWithoutAnAreaIsReportedOnce) {
  list->let_RangePrefix("P_");
  Define("P_code", "=Sheet1!$B$1:$B$9");
  Declare("code", hdiDetail, rdtString);
  const PostingRead posting = Read();
  EXPECT_EQ(posting.rows.size(), 1U);
  EXPECT_EQ(posting.badCells.size(), 1U);
}

TEST_F(PostingReadFromASheet, AnAreaOnAnotherSheetIsToldWithThatSheet) {
  list->let_RangePrefix("P_");
  Define("P_amount", "=Sheet1!$A$1");
  Define("amount", "=Sheet2!$C$3:$C$4");
  Declare("amount", hdiDetail, rdtDouble);
  Sheet("Sheet2").get_Range("C4").let_Value("bad");
  const PostingRead posting = Read();
  EXPECT_EQ(posting.ranges[0].address, "'Sheet2'!C3:C4");
  ASSERT_EQ(posting.badCells.size(), 1U);
  EXPECT_EQ(posting.badCells[0].address, "'Sheet2'!C4");
}

TEST_F(PostingReadFromASheet, AnotherSheetStartsWithTheSchemeThatTheCallerWants) {
  list->let_SheetRangeNames(true);
  Define("amount", "=Sheet1!$A$1");
  Define("Sheet2__amount", "=Sheet2!$A$1:$A$5");
  Declare("amount", hdiDetail, rdtDouble);
  EXPECT_FALSE(ReadPosting(*list, Sheet("Sheet1")).usingSheetRangeNames);
  const PostingRead second = ReadPosting(*list, Sheet("Sheet2"));
  EXPECT_TRUE(second.usingSheetRangeNames);
  EXPECT_EQ(second.ranges[0].address, "A1:A5");
}

TEST_F(PostingReadFromASheet, TellsHowFarItHasCome) {
  Place("amount", "$A$1:$A$3", hdiDetail, rdtDouble);
  std::vector<std::pair<std::int32_t, std::int32_t>> told;
  ReadPosting(*list, Sheet("Sheet1"),
              [&](std::int32_t row, std::int32_t rows) { told.emplace_back(row, rows); });
  EXPECT_EQ(told, (std::vector<std::pair<std::int32_t, std::int32_t>>{{1, 3}, {2, 3}, {3, 3}}));
}

TEST_F(PostingReadFromASheet, TellsWhetherAnyRangeExists) {
  Declare("amount", hdiDetail, rdtDouble);
  EXPECT_FALSE(Read().AnyRangeExists());
  Define("amount", "=Sheet1!$A$1");
  EXPECT_TRUE(Read().AnyRangeExists());
}

TEST_F(PostingReadFromASheet, AHostThatHasGoneIsNoBadCell) {
  Place("amount", "$A$1:$A$300", hdiDetail, rdtDouble);
  const excel::Worksheet sheet = Sheet("Sheet1");
  const auto cutOff = [&](std::int32_t row, std::int32_t) {
    if (row != 2) return;
    for (const char* member : {"Worksheet.Name", "Worksheet.Parent"}) {
      host.Calls().FailMember(member, 1004, "The program has ended");
    }
  };
  const auto error = tests::ErrorOf([&] { ReadPosting(*list, sheet, cutOff); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "The program has ended");
}

}  // namespace
}  // namespace rangewerks::apps
