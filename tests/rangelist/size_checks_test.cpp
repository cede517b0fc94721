// Whether parallel detail columns have the height that they must have.
#include <gmock/gmock.h>

#include "support/matches_regex.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using automation::kApplicationErrorBase;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string LevelOf(const std::string& procedure) {
  return procedure + " of Class Module clsInterfaceRangeList Line#:[0-9]+";
}

class SizeChecks : public SheetFixture {
 protected:
  /// Declares a range of so many rows in a column.
  clsInterfaceRangeList::Record Place(const std::string& name, const std::string& column,
                                      int rows) const {
    Define(name, "=Sheet1!$" + column + "$1:$" + column + "$" + std::to_string(rows));
    return Declare(name);
  }
  std::pair<bool, std::int32_t> Check(const std::string& name, std::int32_t size) const {
    std::int32_t found = -77;
    const bool right = list->CheckRangeSize(name, size, found);
    return {right, found};
  }
};

TEST_F(SizeChecks, ARangeThatIsNotOnTheSheetPassesWithMinusOne) {
  Declare("Qty");
  list->SetIfRangesExist();
  EXPECT_THAT(CallsOf([&] { EXPECT_EQ(Check("Qty", 7), std::pair(true, -1)); }), IsEmpty());
}

TEST_F(SizeChecks, FiveRowsAgainstSevenAreFalseAndGiveFive) {
  Place("Qty", "A", 5);
  list->SetIfRangesExist();
  EXPECT_EQ(Check("Qty", 7), std::pair(false, 5));
}

TEST_F(SizeChecks, TheRightSizeIsTrueAndGivesMinusOne) {
  Place("Qty", "A", 5);
  list->SetIfRangesExist();
  EXPECT_EQ(Check("Qty", 5), std::pair(true, -1));
}

TEST_F(SizeChecks, CheckRangeSizeAsksTheHostForTheRowsAlone) {
  Place("Qty", "A", 5);
  list->SetIfRangesExist();
  EXPECT_THAT(CallsOf([&] { Check("Qty", 5); }),
              ElementsAre("Worksheet.Parent get", "Workbook.Names get \"Qty\"",
                          "Name.RefersToRange get", "Range.Rows get", "Range.Count get"));
}

TEST_F(SizeChecks, CheckRangeSizeOfANameThatIsNotDeclaredFailsWithMinusOne) {
  std::int32_t found = -77;
  const Error error = ErrorOf([&] { list->CheckRangeSize("Qty", 5, found); });
  EXPECT_EQ(error.Number(), kApplicationErrorBase);
  EXPECT_EQ(error.Description(), "RangeExists called on range not on list (Qty)");
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ RangeExists\r\n" + LevelOf("CheckRangeSize")));
  EXPECT_EQ(found, -1);
}

TEST_F(SizeChecks, CheckRangeSizeByNameWritesTheSizeToTheCallersVariable) {
  Place("Qty", "A", 5);
  list->SetIfRangesExist();
  Variant size;
  EXPECT_EQ(Object(list).Call(Member("CheckRangeSize"), {"Qty", 7, Argument::Reference(size)}),
            Variant(false));
  EXPECT_EQ(size, Variant(5));
  EXPECT_EQ(Object(list).Call(Member("CheckRangeSize"), {"Qty", 5, Argument::Reference(size)}),
            Variant(true));
  EXPECT_EQ(size, Variant(-1));
}

TEST_F(SizeChecks, AMemberOfThreeRowsAgainstAMasterOfFiveRaisesTheWordsWithBothSizes) {
  Place("Qty", "A", 3)->let_GroupRange("Code");
  Place("Code", "B", 5);
  list->SetIfRangesExist();
  const Error error = ErrorOf([&] { list->CheckGroupSizes("Code"); });
  EXPECT_EQ(error.Number(), kApplicationErrorBase);
  EXPECT_EQ(error.Description(),
            "Range Qty has size 3 which is different from range Code, size (5)");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf("CheckGroupSizes")));
}

TEST_F(SizeChecks, TheFirstMismatchInListOrderEndsTheCheck) {
  Place("Code", "A", 5)->let_GroupRange("Code");
  Place("Same", "B", 5)->let_GroupRange("Code");
  Place("First", "C", 4)->let_GroupRange("Code");
  Place("Second", "D", 3)->let_GroupRange("Code");
  list->SetIfRangesExist();
  EXPECT_EQ(ErrorOf([&] { list->CheckGroupSizes("Code"); }).Description(),
            "Range First has size 4 which is different from range Code, size (5)");
}

TEST_F(SizeChecks, OnlyRangesThatNameTheMasterExactlyAreItsMembers) {
  Place("Code", "A", 5);
  Place("Other", "B", 3)->let_GroupRange("code");
  Place("None", "C", 3);
  list->SetIfRangesExist();
  EXPECT_THAT(CallsOf([&] { list->CheckGroupSizes("Code"); }),
              ElementsAre("Worksheet.Parent get", "Workbook.Names get \"Code\"",
                          "Name.RefersToRange get", "Range.Rows get", "Range.Count get"));
}

TEST_F(SizeChecks, AMemberThatBecameAHeaderAndHasOneRowIsNoMismatch) {
  Place("Code", "A", 5);
  const auto member = Place("Qty", "B", 1);
  member->let_GroupRange("Code");
  member->let_CanBeHeader(true);
  list->SetIfRangesExist();
  EXPECT_TRUE(member->get_BecomeHeader());
  list->CheckGroupSizes("Code");
  member->let_BecomeHeader(false);
  EXPECT_EQ(ErrorOf([&] { list->CheckGroupSizes("Code"); }).Description(),
            "Range Qty has size 1 which is different from range Code, size (5)");
}

TEST_F(SizeChecks, AMemberThatBecameAHeaderAndHasTwoRowsIsAMismatch) {
  Place("Code", "A", 5);
  const auto member = Place("Qty", "B", 2);
  member->let_GroupRange("Code");
  list->SetIfRangesExist();
  member->let_BecomeHeader(true);
  EXPECT_EQ(ErrorOf([&] { list->CheckGroupSizes("Code"); }).Description(),
            "Range Qty has size 2 which is different from range Code, size (5)");
}

TEST_F(SizeChecks, AMemberThatIsNotOnTheSheetIsPassedOver) {
  Place("Code", "A", 5);
  Declare("Qty")->let_GroupRange("Code");
  list->SetIfRangesExist();
  list->CheckGroupSizes("Code");
}

TEST_F(SizeChecks, AMasterThatIsNotOnTheSheetIsMissingAlthoughCheckRangeSizeIsSilent) {
  Declare("Code");
  list->SetIfRangesExist();
  EXPECT_EQ(Check("Code", 5), std::pair(true, -1));
  const Error error = ErrorOf([&] { list->CheckGroupSizes("Code"); });
  EXPECT_EQ(error.Number(), kApplicationErrorBase);
  EXPECT_EQ(error.Description(), "Range Code is missing");
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ Workbook\r\n" +
                           LevelOf("GetRange") + "\r\n" + LevelOf("CheckGroupSizes")));
}

TEST_F(SizeChecks, AMemberWhoseAreaFailsIsReportedAsTheMasterMissing) {
  Place("Code", "A", 5);
  const auto member = Declare("Qty");
  member->let_GroupRange("Code");
  list->SetIfRangesExist();
  member->let_RangeExists(true);
  const Error error = ErrorOf([&] { list->CheckGroupSizes("Code"); });
  EXPECT_EQ(error.Number(), kApplicationErrorBase);
  EXPECT_EQ(error.Description(), "Range Code is missing");
}

TEST_F(SizeChecks, CheckGroupSizesIsReachedByName) {
  Place("Qty", "A", 3)->let_GroupRange("Code");
  Place("Code", "B", 5);
  list->SetIfRangesExist();
  EXPECT_EQ(ErrorOf([&] { Object(list).Call(Member("CheckGroupSizes"), {"Code"}); }).Description(),
            "Range Qty has size 3 which is different from range Code, size (5)");
}

}  // namespace
}  // namespace rangewerks::tests
