// Clearing declared ranges.
#include <gmock/gmock.h>

#include "automation/value_list.h"
#include "support/matches_regex.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using automation::ValueList;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string LevelOf(const std::string& procedure) {
  return procedure + " of Class Module clsInterfaceRangeList Line#:[0-9]+";
}

class Clearing : public SheetFixture {
 protected:
  /// Declares a range over the first three rows of a column, each holding "x".
  clsInterfaceRangeList::Record Place(const std::string& name, const std::string& column,
                                      eRangeHeadDetailInd indicator = hdiDetail) const {
    Define(name, "=Sheet1!$" + column + "$1:$" + column + "$3");
    Put(column + "1:" + column + "3", "x");
    return Declare(name, indicator);
  }
  static Object Values(std::vector<Variant> values) {
    return {std::make_shared<ValueList>(std::move(values))};
  }
  bool IsClear(const std::string& column) const {
    for (const char* row : {"1", "2", "3"}) {
      if (!Cells(column + row).get_Formula().empty()) return false;
    }
    return true;
  }
  /// The columns of A to D that have nothing left in them.
  std::string Cleared() const {
    std::string columns;
    for (const char* column : {"A", "B", "C", "D"}) {
      if (IsClear(column)) columns += column;
    }
    return columns;
  }
};

TEST_F(Clearing, ClearRangeClearsTheWholeRangeFormulasIncluded) {
  Place("a", "A");
  Put("A2", "=B1");
  Put("A4", "below");
  list->SetIfRangesExist();
  list->ClearRange("a");
  EXPECT_TRUE(IsClear("A"));
  EXPECT_EQ(Cells("A4").get_Value(), Variant("below"));
}

TEST_F(Clearing, ClearRangeLeavesTheFormatOfTheCells) {
  Place("a", "A");
  Cells("A1:A3").Let(Member("NumberFormat"), "@");
  list->SetIfRangesExist();
  list->ClearRange("a");
  EXPECT_TRUE(IsClear("A"));
  EXPECT_EQ(Cells("A2").Get(Member("NumberFormat")), Variant("@"));
}

TEST_F(Clearing, ClearRangeDoesNotAskWhetherACellTakesAValue) {
  Place("a", "A");
  Put("A2", "=B1");
  list->SetIfRangesExist();
  list->let_LeaveBlankOnPopulate(true);
  list->let_LeaveFormulaOnPopulate(true);
  EXPECT_THAT(CallsOf([&] { list->ClearRange("a"); }),
              ElementsAre("Worksheet.Parent get", "Workbook.Names get \"a\"",
                          "Name.RefersToRange get", "Range.ClearContents call"));
  EXPECT_TRUE(IsClear("A"));
}

TEST_F(Clearing, ClearRangeOfADeclaredRangeThatIsNotOnTheSheetDoesNothing) {
  Declare("a");
  list->SetIfRangesExist();
  EXPECT_THAT(CallsOf([&] { list->ClearRange("a"); }), IsEmpty());
}

TEST_F(Clearing, ClearRangeOfANameThatIsNotDeclaredIsAnErrorThatTellsTheRangeBehindTheLine) {
  const Error error = ErrorOf([&] { list->ClearRange("other"); });
  EXPECT_EQ(error.Number(), 5);
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf("ClearRange") +
                                           "\r\n Range Name: other"));
}

TEST_F(Clearing, ClearRangeTellsTheRangeBehindItsLineWhenTheHostFails) {
  Place("a", "A");
  list->SetIfRangesExist();
  host.Calls().FailMember("Range.ClearContents", 1004, "locked");
  const Error error = ErrorOf([&] { list->ClearRange("a"); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "locked");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ Workbook\r\n" +
                                           LevelOf("ClearRange") + "\r\n Range Name: a"));
}

TEST_F(Clearing, IsFormulaFetchesTheRangeAnewForEachCellAndStopsAtTheFirstFormula) {
  Place("a", "A");
  Put("A2", "=B1");
  EXPECT_THAT(
      CallsOf([&] { EXPECT_TRUE(list->IsFormula("a")); }),
      ElementsAre("Worksheet.Parent get", "Workbook.Names get \"a\"", "Name.RefersToRange get",
                  "Range.Rows get", "Range.Count get", "Worksheet.Parent get",
                  "Workbook.Names get \"a\"", "Name.RefersToRange get", "Range.Item get 1",
                  "Range.HasFormula get", "Worksheet.Parent get", "Workbook.Names get \"a\"",
                  "Name.RefersToRange get", "Range.Item get 2", "Range.HasFormula get"));
}

TEST_F(Clearing, IsFormulaOfARangeWithoutOneIsFalse) {
  Place("a", "A");
  Put("B1", "=A1");
  Put("A4", "=A1");
  EXPECT_FALSE(list->IsFormula("a"));
}

TEST_F(Clearing, AnAnswerOfTheHostForMixedCellsCountsAsNoFormula) {
  Put("A1", "=B1");
  EXPECT_TRUE(Object(Cells("A1:A2")).Get(Member("HasFormula")).IsNull());
  EXPECT_FALSE(Cells("A1:A2").get_HasFormula());
}

TEST_F(Clearing, IsFormulaOfARangeThatIsNotOnTheSheetFailsWithTheWordsOfGetRange) {
  Declare("a");
  const Error error = ErrorOf([&] { list->IsFormula("a"); });
  EXPECT_EQ(error.Description(),
            "Error finding area on sheet referred to by range: a (Full name:a).");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ Workbook\r\n" +
                                           LevelOf("GetRange") + "\r\n" + LevelOf("IsFormula")));
}

TEST_F(Clearing, ARangeOfTenRowsWithOneFormulaStaysWholeUnlessTheSwitchIsSet) {
  Define("a", "=Sheet1!$A$1:$A$10");
  Declare("a");
  Put("A1:A10", "x");
  Put("A7", "=B1");
  list->ClearAllRanges();
  EXPECT_EQ(Cells("A1").get_Value(), Variant("x"));
  EXPECT_EQ(Cells("A7").get_Formula(), "=B1");
  EXPECT_EQ(Cells("A10").get_Value(), Variant("x"));
  list->let_DoNotCheckIsFormula(true);
  list->ClearAllRanges();
  EXPECT_TRUE(IsClear("A"));
  EXPECT_EQ(Cells("A7").get_Formula(), "");
  EXPECT_EQ(Cells("A10").get_Value(), Variant());
}

TEST_F(Clearing, ClearAllRangesWithoutArgumentsClearsEveryKindAlike) {
  Place("a", "A", hdiHeader);
  Place("b", "B", hdiDetail);
  Place("g", "C", hdiHeaderDetail);
  Place("d", "D", hdiNone)->let_IsSageCompany(true);
  list->ClearAllRanges();
  EXPECT_EQ(Cleared(), "ABCD");
}

TEST_F(Clearing, ClearAllRangesLeavesOutTheKindsThatItIsTold) {
  const auto clearedBy = [&](bool notHeader, bool notCompany, bool notHeaderDetail) {
    Put("A1:D3", "x");
    list->ClearAllRanges(notHeader, notCompany, notHeaderDetail);
    return Cleared();
  };
  Place("a", "A", hdiHeader);
  Place("b", "B", hdiDetail);
  Place("g", "C", hdiHeaderDetail);
  Place("d", "D", hdiDetail)->let_IsSageCompany(true);
  EXPECT_EQ(clearedBy(true, false, false), "BCD");
  EXPECT_EQ(clearedBy(false, true, false), "ABC");
  EXPECT_EQ(clearedBy(false, false, true), "ABD");
  EXPECT_EQ(clearedBy(true, true, true), "B");
}

TEST_F(Clearing, ClearAllRangesFindsOutWhatTheSheetHasFirst) {
  const auto there = Place("a", "A");
  const auto gone = Declare("gone");
  gone->let_RangeExists(true);
  list->ClearAllRanges();
  EXPECT_TRUE(there->get_RangeExists());
  EXPECT_FALSE(gone->get_RangeExists());
  EXPECT_EQ(Cleared().front(), 'A');
}

TEST_F(Clearing, ClearDetailRangesClearsExactlyTheDetailRanges) {
  Place("a", "A", hdiHeader);
  Place("b", "B", hdiDetail);
  Place("g", "C", hdiHeaderDetail);
  Place("d", "D", hdiNone);
  list->ClearDetailRanges();
  EXPECT_EQ(Cleared(), "B");
}

TEST_F(Clearing, ClearDetailRangesProtectsFormulasWhateverTheSwitchSays) {
  Place("a", "A");
  Place("b", "B");
  Put("B3", "=A1");
  list->let_DoNotCheckIsFormula(true);
  list->ClearDetailRanges();
  EXPECT_EQ(Cleared().substr(0, 1), "A");
  EXPECT_EQ(Cells("B1").get_Value(), Variant("x"));
  EXPECT_EQ(Cells("B3").get_Formula(), "=A1");
}

TEST_F(Clearing, AClearingLoopThatFailsLeavesTheEarlierRangesCleared) {
  Place("a", "A");
  Place("b", "B");
  list->let_DoNotCheckIsFormula(true);
  list->SetIfRangesExist();
  const std::size_t locating = CallsOf([&] { list->SetIfRangesExist(); }).size();
  host.Calls().FailCall(locating + 8, 1004, "locked");
  const Error error = ErrorOf([&] { list->ClearAllRanges(); });
  EXPECT_EQ(error.Description(), "locked");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ Workbook\r\n" +
                                           LevelOf("ClearRange") + "\r\n Range Name: b\r\n" +
                                           LevelOf("ClearAllRanges")));
  EXPECT_TRUE(IsClear("A"));
  EXPECT_FALSE(IsClear("B"));
}

class ClearingForTag : public Clearing {
 protected:
  ClearingForTag() {
    const auto add = [&](const char* name, const char* column, const char* tag, const char* group) {
      const auto record = Place(name, column);
      record->let_Tag(tag);
      record->let_Group(group);
    };
    add("a", "A", "T", "g1");
    add("b", "B", "T", "g2");
    add("g", "C", "t", "g1");
    add("d", "D", "", "g1");
    list->SetIfRangesExist();
  }
};

TEST_F(ClearingForTag, ClearsTheRangesWithExactlyThatTag) {
  list->ClearRangesForTag("T");
  EXPECT_EQ(Cleared(), "AB");
}

TEST_F(ClearingForTag, AnEmptyTagWithExcludedGroupsClearsTheUntaggedApartFromTheExcluded) {
  Place("e", "E")->let_Group("g3");
  list->SetIfRangesExist();
  list->ClearRangesForTag("", Values({"g3", "g2"}));
  EXPECT_EQ(Cleared(), "D");
  EXPECT_FALSE(IsClear("E"));
}

TEST_F(ClearingForTag, ExcludedGroupsAndRangesAreLeftOut) {
  list->ClearRangesForTag("T", Values({"x", "g1"}));
  EXPECT_EQ(Cleared(), "B");
  Put("A1:D3", "x");
  list->ClearRangesForTag("T", {}, Values({"b"}));
  EXPECT_EQ(Cleared(), "A");
  Put("A1:D3", "x");
  list->ClearRangesForTag("T", Values({"g1"}), Values({"b"}));
  EXPECT_EQ(Cleared(), "");
}

TEST_F(ClearingForTag, ExclusionsAreComparedWithRegardToCase) {
  list->ClearRangesForTag("T", Values({"G1"}), Values({"B"}));
  EXPECT_EQ(Cleared(), "AB");
}

TEST_F(ClearingForTag, FormulasAreProtectedUnlessToldOtherwise) {
  Put("A3", "=B1");
  list->let_DoNotCheckIsFormula(true);
  list->ClearRangesForTag("T");
  EXPECT_EQ(Cleared(), "B");
  EXPECT_THAT(CallsOf([&] { list->ClearRangesForTag("T", {}, Values({"b"}), true); }),
              ElementsAre("Worksheet.Parent get", "Workbook.Names get \"a\"",
                          "Name.RefersToRange get", "Range.ClearContents call"));
  EXPECT_EQ(Cleared(), "AB");
}

TEST_F(ClearingForTag, DoesNotFindOutAnewWhatTheSheetHas) {
  list->Item("a")->let_RangeExists(false);
  list->ClearRangesForTag("T");
  EXPECT_EQ(Cleared(), "B");
  EXPECT_FALSE(list->Item("a")->get_RangeExists());
}

TEST_F(ClearingForTag, ReportsUnderItsOlderName) {
  host.Calls().FailMember("Range.ClearContents", 1004, "locked");
  const Error error = ErrorOf([&] { list->ClearRangesForTag("T"); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "locked");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ Workbook\r\n" +
                                           LevelOf("ClearRange") + "\r\n Range Name: a\r\n" +
                                           LevelOf("ClearGroupRanges")));
}

TEST_F(ClearingForTag, AnExclusionThatIsNoCollectionIsReportedUnderItsOlderName) {
  const Error error = ErrorOf([&] { list->ClearRangesForTag("T", Object(list->Item("a"))); });
  EXPECT_EQ(error.Number(), 451);
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf("ClearGroupRanges")));
}

TEST_F(ClearingForTag, IsReachedByNameWithNamedAndOmittedArguments) {
  const Object late(list);
  late.Call(Member("ClearRangesForTag"), {"T"}, {{Member("colExcludeRanges"), Values({"b"})}});
  EXPECT_EQ(Cleared(), "A");
  Put("A1:D3", "x");
  Put("A2", "=B1");
  late.Call(Member("ClearRangesForTag"),
            {"T", Argument::Omitted(), Argument::Omitted(), Argument(true)});
  EXPECT_EQ(Cleared(), "AB");
  Put("A1:D3", "x");
  late.Call(Member("ClearRangesForTag"), {},
            {{Member("bDontCheckFormula"), true},
             {Member("colExcludeGroups"), Values({"g2"})},
             {Member("sTag"), "T"}});
  EXPECT_EQ(Cleared(), "A");
}

TEST_F(Clearing, TheOtherMembersAreReachedByName) {
  Place("a", "A", hdiHeader);
  Place("b", "B");
  const Object late(list);
  EXPECT_EQ(late.Call(Member("IsFormula"), {"a"}), Variant(false));
  late.Call(Member("ClearAllRanges"), {}, {{Member("bNotHeader"), true}});
  EXPECT_EQ(Cleared().substr(0, 1), "B");
  late.Call(Member("ClearRange"), {"a"});
  EXPECT_TRUE(IsClear("A"));
  Put("B1:B3", "x");
  late.Call(Member("ClearDetailRanges"));
  EXPECT_TRUE(IsClear("B"));
}

}  // namespace
}  // namespace rangewerks::tests
