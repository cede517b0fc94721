// Which declared ranges a sheet has, and which declared range lies under a cell.
#include <gmock/gmock.h>

#include "support/matches_regex.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SetIfRangesExist : public SheetFixture {};

TEST_F(SetIfRangesExist, MarksThePlainNamesOfTheSheet) {
  Define("code", "=Sheet1!$A$1:$A$3");
  Define("other", "=Sheet1!$B$1");
  const auto code = Declare("CODE");
  const auto missing = Declare("missing");
  missing->let_RangeExists(true);
  list->SetIfRangesExist();
  EXPECT_TRUE(code->get_RangeExists());
  EXPECT_FALSE(missing->get_RangeExists());
}

TEST_F(SetIfRangesExist, AnEmptyListStillWalksAllNamesAndFindsNoGroup) {
  Define("a", "=Sheet1!$A$1");
  Define("b", "=Sheet1!$B$1");
  EXPECT_THAT(
      CallsOf([&] { list->SetIfRangesExist(); }),
      ElementsAre("Worksheet.Parent get", "Workbook.Application get", "Worksheet.Name get",
                  "Application.Names get", "Names enumerate", "Name.Name get", "Name.Name get"));
  EXPECT_FALSE(list->get_GroupFound());
}

TEST_F(SetIfRangesExist, InAWorkbookWithoutNamesNothingExists) {
  const auto a = Declare("a");
  const auto b = Declare("b");
  a->let_RangeExists(true);
  list->SetIfRangesExist();
  EXPECT_FALSE(a->get_RangeExists());
  EXPECT_FALSE(b->get_RangeExists());
}

TEST_F(SetIfRangesExist, AsksTheSheetOnceForEachDeclaredNameWithTheWholeWorkbookName) {
  list->let_SheetRangeNames(true);
  list->let_RangePrefix("P_");
  Define("Sheet1__P_a", "=Sheet1!$A$1");
  Define("Sheet2__P_a", "=Sheet2!$A$1");
  Define("undeclared", "=Sheet1!$B$1");
  Declare("a");
  EXPECT_THAT(CallsOf([&] { list->SetIfRangesExist(); }),
              ElementsAre("Worksheet.Parent get", "Workbook.Application get", "Worksheet.Name get",
                          "Application.Names get", "Names enumerate", "Name.Name get",
                          "Worksheet.Range get \"Sheet1__P_a\"", "Name.Name get", "Name.Name get"));
}

TEST_F(SetIfRangesExist, AsksForTheRowsOnlyOfARangeThatCanBeAHeader) {
  Define("a", "=Sheet1!$A$1");
  Declare("a")->let_CanBeHeader(true);
  EXPECT_THAT(CallsOf([&] { list->SetIfRangesExist(); }),
              ElementsAre("Worksheet.Parent get", "Workbook.Application get", "Worksheet.Name get",
                          "Application.Names get", "Names enumerate", "Name.Name get",
                          "Worksheet.Range get \"a\"", "Range.Rows get", "Range.Count get"));
}

TEST_F(SetIfRangesExist, SeesTheRangesOfItsOwnSheetAlone) {
  list->let_SheetRangeNames(true);
  Define("Sheet2__code", "=Sheet2!$A$1");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  EXPECT_FALSE(code->get_RangeExists());
  list->set_ActSheet(Sheet("Sheet2"));
  list->SetIfRangesExist();
  EXPECT_TRUE(code->get_RangeExists());
  EXPECT_TRUE(list->get_UsingSheetRangeNames());
}

TEST_F(SetIfRangesExist, APlainNameValidOnTheSheetTurnsTheSheetSchemeOff) {
  list->let_SheetRangeNames(true);
  Define("code", "=Sheet1!$A$1");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  EXPECT_TRUE(code->get_RangeExists());
  EXPECT_FALSE(list->get_UsingSheetRangeNames());
  EXPECT_TRUE(list->get_SheetRangeNames());
}

TEST_F(SetIfRangesExist, ThePlainNameOfAnotherSheetLeavesTheSchemeOn) {
  list->let_SheetRangeNames(true);
  Define("code", "=Sheet2!$A$1");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  EXPECT_FALSE(code->get_RangeExists());
  EXPECT_TRUE(list->get_UsingSheetRangeNames());
}

TEST_F(SetIfRangesExist, AfterAPlainNameThePassGoesOnUnderThePlainScheme) {
  list->let_SheetRangeNames(true);
  // The host gives names in alphabetical order: the sheet name comes after the plain one.
  Define("a", "=Sheet1!$A$1");
  Define("Sheet1__b", "=Sheet1!$B$1");
  Declare("a");
  const auto b = Declare("b");
  list->SetIfRangesExist();
  EXPECT_FALSE(b->get_RangeExists());
}

TEST_F(SetIfRangesExist, WithAPrefixANameWithoutItIsPassedOverEvenIfDeclared) {
  list->let_RangePrefix("P_");
  Define("code", "=Sheet1!$A$1");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  EXPECT_FALSE(code->get_RangeExists());
}

TEST_F(SetIfRangesExist, ThePrefixAppliesUnderThePlainSchemeWhichThenReadsWithoutIt) {
  list->let_RangePrefix("P_");
  Define("P_code", "=Sheet1!$A$1");
  Put("A1", "x");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  EXPECT_TRUE(code->get_RangeExists());
  EXPECT_EQ(ErrorOf([&] { list->GetRange("code"); }).Description(),
            "Error finding area on sheet referred to by range: code (Full name:code).");
}

TEST_F(SetIfRangesExist, ThePrefixIsComparedWithRegardToCaseAndTheNameWithout) {
  list->let_RangePrefix("P_");
  Define("p_a", "=Sheet1!$A$1");
  Define("P_B", "=Sheet1!$B$1");
  const auto a = Declare("a");
  const auto b = Declare("b");
  list->SetIfRangesExist();
  EXPECT_FALSE(a->get_RangeExists());
  EXPECT_TRUE(b->get_RangeExists());
}

TEST_F(SetIfRangesExist, APrefixOfBlanksIsNone) {
  list->let_RangePrefix("  ");
  Define("code", "=Sheet1!$A$1");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  EXPECT_TRUE(code->get_RangeExists());
}

TEST_F(SetIfRangesExist, ANameWithoutCellsHereIsNoRangeOfTheSheet) {
  Define("elsewhere", "=Sheet2!$A$1");
  host.DefineConstant(workbook, "constant", "=12.5");
  const auto elsewhere = Declare("elsewhere");
  const auto constant = Declare("constant");
  list->SetIfRangesExist();
  EXPECT_FALSE(elsewhere->get_RangeExists());
  EXPECT_FALSE(constant->get_RangeExists());
}

TEST_F(SetIfRangesExist, AnUndeclaredNameBehindAMissingRangeMarksThatRangeAsThere) {
  // "code" is found first and turned back to false, as its cells lie on the other sheet; the name
  // that isn't on the list then marks it once more.
  Define("code", "=Sheet2!$A$1");
  Define("undeclared", "=Sheet1!$A$1");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  EXPECT_TRUE(code->get_RangeExists());
}

TEST_F(SetIfRangesExist, ANameWithoutThePrefixBehindAMissingRangeMarksNothing) {
  list->let_RangePrefix("P_");
  Define("P_code", "=Sheet2!$A$1");
  Define("undeclared", "=Sheet1!$A$1");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  EXPECT_FALSE(code->get_RangeExists());
}

TEST_F(SetIfRangesExist, AnUndeclaredNameBeforeAllDeclaredOnesFailsUnnoticed) {
  Define("a_undeclared", "=Sheet1!$A$1");
  Define("code", "=Sheet2!$A$1");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  EXPECT_FALSE(code->get_RangeExists());
}

TEST_F(SetIfRangesExist, TheCarriedOverRecordIsForgottenBetweenPasses) {
  Define("code", "=Sheet2!$A$1");
  const auto code = Declare("code");
  list->SetIfRangesExist();
  Define("a_undeclared", "=Sheet1!$A$1");
  list->SetIfRangesExist();
  EXPECT_FALSE(code->get_RangeExists());
}

TEST_F(SetIfRangesExist, GroupFoundTellsWhetherAnyGroupIsNotBlank) {
  const auto record = Declare("a");
  record->let_Group("  ");
  list->SetIfRangesExist();
  EXPECT_FALSE(list->get_GroupFound());
  record->let_Group("G");
  EXPECT_FALSE(list->get_GroupFound());
  list->SetIfRangesExist();
  EXPECT_TRUE(list->get_GroupFound());
  list->ClearList();
  list->SetIfRangesExist();
  EXPECT_FALSE(list->get_GroupFound());
}

TEST_F(SetIfRangesExist, AOneRowRangeThatCanBeAHeaderBecomesOneUntilItGrows) {
  Define("code", "=Sheet1!$A$1");
  const auto code = Declare("code");
  code->let_CanBeHeader(true);
  list->SetIfRangesExist();
  EXPECT_TRUE(code->get_BecomeHeader());
  Define("code", "=Sheet1!$A$1:$A$3");
  list->SetIfRangesExist();
  EXPECT_FALSE(code->get_BecomeHeader());
}

TEST_F(SetIfRangesExist, ARangeThatCanNotBeAHeaderKeepsWhateverItHad) {
  Define("code", "=Sheet1!$A$1:$A$3");
  const auto code = Declare("code");
  code->let_BecomeHeader(true);
  list->SetIfRangesExist();
  EXPECT_TRUE(code->get_BecomeHeader());
}

TEST_F(SetIfRangesExist, ARangeThatStopsExistingKeepsItsLastBecomeHeader) {
  const auto code = Declare("code");
  code->let_CanBeHeader(true);
  code->let_BecomeHeader(true);
  list->SetIfRangesExist();
  EXPECT_FALSE(code->get_RangeExists());
  EXPECT_TRUE(code->get_BecomeHeader());
}

TEST_F(SetIfRangesExist, AFailureToCountTheRowsIsNotRaised) {
  Define("code", "=Sheet1!$A$1");
  const auto code = Declare("code");
  code->let_CanBeHeader(true);
  host.Calls().FailMember("Range.Rows", 1004, "no rows");
  list->SetIfRangesExist();
  EXPECT_TRUE(code->get_RangeExists());
  EXPECT_FALSE(code->get_BecomeHeader());
}

TEST_F(SetIfRangesExist, AFailingSheetObjectIsReportedWithTheWordsForIt) {
  host.Calls().FailMember("Worksheet.Parent", 1004, "the sheet is gone");
  const Error error = ErrorOf([&] { list->SetIfRangesExist(); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x80040000));
  EXPECT_EQ(error.Description(),
            "Worksheet object error when checking if ranges exists on sheet \r\nthe sheet is gone");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: ([0-9]+) .*SetIfRangesExist of Class "
                                           "Module clsInterfaceRangeList Line#:[0-9]+"));
}

TEST_F(SetIfRangesExist, WithoutASheetTheSheetObjectFails) {
  list->set_ActSheet({});
  const Error error = ErrorOf([&] { list->SetIfRangesExist(); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x80040000));
  EXPECT_EQ(error.Description(),
            "Worksheet object error when checking if ranges exists on sheet \r\n"
            "Object variable or With block variable not set");
}

TEST_F(SetIfRangesExist, AFailureOutsideTheTestedStepsStopsThePassAndKeepsWhatIsKnown) {
  Define("a", "=Sheet1!$A$1");
  Define("b", "=Sheet1!$B$1");
  const auto a = Declare("a");
  const auto b = Declare("b");
  b->let_RangeExists(true);
  // Calls: Parent, Application, Name, Names, enumerate, then for "a" Name and Range, then for "b".
  host.Calls().FailCall(8, 1004, "busy");
  const Error error = ErrorOf([&] { list->SetIfRangesExist(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "busy");
  EXPECT_THAT(error.Source(),
              MatchesRegex(".*SetIfRangesExist of Class Module clsInterfaceRangeList "
                           "Line#:[0-9]+"));
  EXPECT_TRUE(a->get_RangeExists());
  EXPECT_FALSE(b->get_RangeExists());
}

TEST_F(SetIfRangesExist, TheHostCallsGrowWithTheNamesAndNotWithTheDeclaredRanges) {
  list->let_SheetRangeNames(true);
  for (int i = 0; i < 20; ++i) {
    Define("Sheet1__n" + std::to_string(i) + "_", "=Sheet1!$A$1");
  }
  const auto calls = [&] { return CallsOf([&] { list->SetIfRangesExist(); }).size(); };
  EXPECT_EQ(calls(), 5U + 20U);
  for (int i = 0; i < 500; ++i) Declare("absent" + std::to_string(i));
  EXPECT_EQ(calls(), 5U + 20U);
  for (int i = 0; i < 10; ++i) Declare("n" + std::to_string(i) + "_");
  EXPECT_EQ(calls(), 5U + 20U + 10U);
}

class Locating : public SheetFixture {
 protected:
  /// Declares and defines a range on the list's sheet and finds it.
  clsInterfaceRangeList::Record Place(const std::string& name, const std::string& address) const {
    Define(name, "=Sheet1!" + address);
    auto record = Declare(name);
    list->SetIfRangesExist();
    return record;
  }
};

TEST_F(Locating, RangeExistsTellsWhatThePassLeftAndDoesNotLookAtTheSheet) {
  Place("code", "$A$1:$A$3");
  Declare("missing");
  EXPECT_THAT(CallsOf([&] {
                EXPECT_TRUE(list->RangeExists("CODE"));
                EXPECT_FALSE(list->RangeExists("missing"));
              }),
              IsEmpty());
}

TEST_F(Locating, RangeExistsOnANameNotOnTheListRaisesWithThePlainSource) {
  const Error error = ErrorOf([&] { list->RangeExists("Nowhere"); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x80040000));
  EXPECT_EQ(error.Source(), "RangeExists");
  EXPECT_EQ(error.Description(), "RangeExists called on range not on list (Nowhere)");
}

TEST_F(Locating, GetRangeAsksTheSheetsOwnWorkbookForTheName) {
  Place("code", "$A$1:$A$3");
  std::vector<std::string> calls = CallsOf([&] { list->GetRange("code"); });
  EXPECT_THAT(calls, ElementsAre("Worksheet.Parent get", "Workbook.Names get \"code\"",
                                 "Name.RefersToRange get"));
  list->let_SheetRangeNames(true);
  Define("Sheet1__code", "=Sheet1!$B$1");
  calls = CallsOf([&] { list->GetRange("code"); });
  EXPECT_THAT(calls, ElementsAre("Worksheet.Name get", "Worksheet.Parent get",
                                 "Workbook.Names get \"Sheet1__code\"", "Name.RefersToRange get"));
  EXPECT_EQ(list->GetRange("code").get_Address(), "$B$1");
}

TEST_F(Locating, GetRangeFindsTheNameAlthoughAnotherWorkbookIsActive) {
  Place("code", "$A$1:$A$3");
  host.AddWorkbook("Book2", {"Sheet1"});
  EXPECT_EQ(list->GetRange("code").get_Address(), "$A$1:$A$3");
  list->SetIfRangesExist();  // walks the names of the active workbook, which has none
  EXPECT_FALSE(list->Item("code")->get_RangeExists());
}

TEST_F(Locating, GetRangeOfAMissingNameKeepsTheHostsNumberAndNamesBothForms) {
  list->let_SheetRangeNames(true);
  list->let_RangePrefix("P_");
  const Error error = ErrorOf([&] { list->GetRange("code"); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(),
            "Error finding area on sheet referred to by range: code (Full name:Sheet1__P_code).");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ .*\r\nGetRange of Class Module "
                                           "clsInterfaceRangeList Line#:[0-9]+"));
}

TEST_F(Locating, GetRangeOfANameWithoutCellsKeepsTheHostsNumber) {
  host.DefineConstant(workbook, "code", "=1");
  host.Calls().FailMember("Name.RefersToRange", 4711, "none");
  const Error error = ErrorOf([&] { list->GetRange("code"); });
  EXPECT_EQ(error.Number(), 4711);
  EXPECT_EQ(error.Description(),
            "Error finding area on sheet referred to by range: code (Full name:code).");
}

TEST_F(Locating, InRangeTellsWhetherTheAreasOverlap) {
  Place("code", "$A$1:$A$3");
  EXPECT_TRUE(list->InRange("code", Cells("A2:C2")));
  EXPECT_FALSE(list->InRange("code", Cells("B2")));
}

TEST_F(Locating, InRangeOfARangeThatDoesNotExistIsFalseWithoutAHostCall) {
  Declare("code");
  const excel::Range cell = Cells("A1");
  EXPECT_THAT(CallsOf([&] { EXPECT_FALSE(list->InRange("code", cell)); }), IsEmpty());
}

TEST_F(Locating, InRangeCallsTheHostInThisOrder) {
  Place("code", "$A$1:$A$3");
  const excel::Range cell = Cells("A1");
  EXPECT_THAT(
      CallsOf([&] { list->InRange("code", cell); }),
      ElementsAre("Worksheet.Parent get", "Workbook.Names get \"code\"", "Name.RefersToRange get",
                  "Worksheet.Application get", "Application.Intersect call Range, Range"));
}

TEST_F(Locating, InRangeWithANameNotOnTheListRaisesTheErrorOfRangeExists) {
  const Error error = ErrorOf([&] { list->InRange("nowhere", Cells("A1")); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x80040000));
  EXPECT_EQ(error.Description(), "RangeExists called on range not on list (nowhere)");
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ RangeExists\r\nInRange of Class Module "
                           "clsInterfaceRangeList Line#:[0-9]+"));
}

TEST_F(Locating, InRangeTurnsAFailureOfTheAreaOrTheIntersectionIntoFalse) {
  Place("code", "$A$1:$A$3");
  const excel::Range cell = Cells("A1");
  host.Calls().FailMember("Application.Intersect", 1004, "no");
  EXPECT_FALSE(list->InRange("code", cell));
  host.Calls().ClearFailures();
  workbook.Get(Member("Names"), {"code"}).AsObject().Call(Member("Delete"));
  EXPECT_FALSE(list->InRange("code", cell));
}

TEST_F(Locating, InAnyRangeGivesTheFirstRangeInListOrderAndTheLine) {
  Place("second", "$A$2:$B$9");
  Place("first", "$A$1:$A$9");
  std::int32_t line = 0;
  EXPECT_EQ(list->InAnyRange(Cells("A2"), line), list->Item("second"));
  EXPECT_EQ(line, 1);
  EXPECT_EQ(list->InAnyRange(Cells("A9"), line), list->Item("second"));
  EXPECT_EQ(line, 8);
  EXPECT_EQ(list->InAnyRange(Cells("A1"), line), list->Item("first"));
  EXPECT_EQ(line, 1);
}

TEST_F(Locating, InAnyRangeOutsideAllRangesGivesNoneAndMinusOne) {
  Place("code", "$A$1:$A$3");
  std::int32_t line = 0;
  EXPECT_EQ(list->InAnyRange(Cells("C1"), line), nullptr);
  EXPECT_EQ(line, -1);
}

TEST_F(Locating, InAnyRangeWithATargetOfSeveralCellsInsideARangeIsATypeMismatch) {
  Place("code", "$A$1:$A$3");
  std::int32_t line = 0;
  const Error error = ErrorOf([&] { list->InAnyRange(Cells("A1:A2"), line); });
  EXPECT_EQ(error.Number(), 13);
  EXPECT_THAT(error.Source(), MatchesRegex(".*CellRow of Class Module clsInterfaceRangeList "
                                           "Line#:[0-9]+\r\nInAnyRange of Class Module "
                                           "clsInterfaceRangeList Line#:[0-9]+"));
}

TEST_F(Locating, ARowNumberBeyond16BitsOverflows) {
  Place("code", "$A$32760:$A$40000");
  std::int32_t line = 0;
  list->InAnyRange(Cells("A32767"), line);
  EXPECT_EQ(line, 8);
  EXPECT_EQ(ErrorOf([&] { list->InAnyRange(Cells("A32768"), line); }).Number(), 6);
  EXPECT_EQ(ErrorOf([&] { list->CellOffsetInRange(Cells("A32768"), "code"); }).Number(), 6);
}

TEST_F(Locating, InAnyRangeByNameWritesTheLineToTheCallersVariable) {
  Place("code", "$A$1:$A$3");
  Variant line;
  const Variant found =
      Object(list).Call(Member("InAnyRange"), {Cells("A3"), automation::Argument::Reference(line)});
  EXPECT_EQ(found.AsObject(), Object(list->Item("code")));
  EXPECT_EQ(line, Variant(3));
}

TEST_F(Locating, CellOffsetInRangeGivesTheLineOrMinusOne) {
  Place("code", "$A$5:$A$9");
  EXPECT_EQ(list->CellOffsetInRange(Cells("A5"), "code"), 1);
  EXPECT_EQ(list->CellOffsetInRange(Cells("A7"), "code"), 3);
  EXPECT_EQ(list->CellOffsetInRange(Cells("B7"), "code"), -1);
  EXPECT_EQ(ErrorOf([&] { list->CellOffsetInRange(Cells("A5:A6"), "code"); }).Number(), 13);
}

TEST_F(Locating, TheLineTakesOneAddressOfTheTargetAndOneOfTheFirstCell) {
  Place("code", "$A$1:$A$3");
  const excel::Range cell = Cells("A2");
  EXPECT_THAT(
      CallsOf([&] { list->CellOffsetInRange(cell, "code"); }),
      ElementsAre("Worksheet.Parent get", "Workbook.Names get \"code\"", "Name.RefersToRange get",
                  "Worksheet.Application get", "Application.Intersect call Range, Range",
                  "Range.Address get", "Worksheet.Parent get", "Workbook.Names get \"code\"",
                  "Name.RefersToRange get", "Range.Item get 1", "Range.Address get"));
}

TEST_F(Locating, BrowseColumnIsTheDeclaredOneOrTheRangeName) {
  const auto code = Place("code", "$A$1:$A$3");
  code->let_IsBrowseable(true);
  EXPECT_EQ(list->BrowseColumn(Cells("A2")), "code");
  code->let_BrowseColumn("codes");
  EXPECT_EQ(list->BrowseColumn(Cells("A2")), "codes");
  EXPECT_EQ(list->BrowseColumn(Cells("B2")), "");
}

TEST_F(Locating, BrowseColumnOfARangeThatIsNotBrowseableIsEmptyAndTheSearchStopsThere) {
  Place("plain", "$A$1:$A$3");
  Place("browseable", "$A$1:$A$3")->let_IsBrowseable(true);
  EXPECT_EQ(list->BrowseColumn(Cells("A2")), "");
}

}  // namespace
}  // namespace rangewerks::tests
