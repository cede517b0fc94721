// Workbook names under both schemes, and their repair.
#include <gmock/gmock.h>

#include "rangelist/ExcelFunctions.h"
#include "support/fixed_system.h"
#include "support/matches_regex.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CorrectedSheetName, ReplacesBlanksDashesAndAmpersandsPlusAndALeadingDigit) {
  EXPECT_EQ(ExcelFunctions::CorrectedSheetName("2024 Q1-Sales & Cost+Tax"),
            "_2024_Q1_Sales___CostplusTax");
}

TEST(CorrectedSheetName, OfAnEmptyTextIsEmptyWithoutAnUnderscore) {
  EXPECT_EQ(ExcelFunctions::CorrectedSheetName(""), "");
}

TEST(CorrectedSheetName, PutsAnUnderscoreBeforeEachLeadingDigitOnly) {
  EXPECT_EQ(ExcelFunctions::CorrectedSheetName("0x"), "_0x");
  EXPECT_EQ(ExcelFunctions::CorrectedSheetName("9"), "_9");
  EXPECT_EQ(ExcelFunctions::CorrectedSheetName("a9"), "a9");
}

TEST(CorrectedSheetName, ALeadingPlusBecomesPlusAndALeadingDashAnUnderscore) {
  EXPECT_EQ(ExcelFunctions::CorrectedSheetName("+Tax"), "plusTax");
  EXPECT_EQ(ExcelFunctions::CorrectedSheetName("-Tax"), "_Tax");
}

TEST(CorrectedSheetName, ChangesNoOtherCharacter) {
  EXPECT_EQ(ExcelFunctions::CorrectedSheetName("Ümsätze(1)!'#"), "Ümsätze(1)!'#");
}

TEST(CorrectedSheetName, SheetsThatDifferInReplacedCharactersShareOnePart) {
  EXPECT_EQ(ExcelFunctions::CorrectedSheetName("A B"), ExcelFunctions::CorrectedSheetName("A-B"));
}

TEST(RangeNameMultiTab, WithAnEmptyRangeNameIsTheSheetPrefixAlone) {
  EXPECT_EQ(ExcelFunctions::RangeNameMultiTab("A B", ""), "A_B__");
  EXPECT_EQ(ExcelFunctions::MultiTabSheetPrefix("A B"), "A_B__");
}

TEST(ExcelFunctionsObject, AnswersByName) {
  using automation::Member;
  using automation::Variant;
  const automation::Object functions(std::make_shared<ExcelFunctions>(nullptr, nullptr));
  EXPECT_EQ(functions.Call(Member("CorrectedSheetName"), {"2 B"}), Variant("_2_B"));
  EXPECT_EQ(functions.Call(Member("MultiTabSheetPrefix"), {"B"}), Variant("B__"));
  EXPECT_EQ(functions.Call(Member("RangeNameMultiTab"), {"B", "c"}), Variant("B__c"));
}

TEST(DllPath, IsTheFolderOfTheLibrarysFileWithoutASeparatorBehind) {
  const auto folderOf = [](const char* file) {
    return ExcelFunctions(std::make_shared<FixedSystem>(file), nullptr).DllPath();
  };
  EXPECT_EQ(folderOf("/opt/rangewerks/lib/librangewerks.so"), "/opt/rangewerks/lib");
  EXPECT_EQ(folderOf("C:\\Program Files\\Rangewerks\\Rangewerks.dll"),
            "C:\\Program Files\\Rangewerks");
}

TEST(DllPath, WithoutASystemIsAClearFailure) {
  const automation::Error error = ErrorOf([] { (void)ExcelFunctions(nullptr, nullptr).DllPath(); });
  EXPECT_EQ(error.Number(), 53);
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ DllPath of Class Module "
                                           "ExcelFunctions Line#:[0-9]+"));
}

class Naming : public SheetFixture {};

TEST_F(Naming, ThePlainSchemeIgnoresPrefixAndSheetAltogether) {
  list->let_RangePrefix("ABC_");
  list->set_ActSheet({});
  EXPECT_EQ(list->FullRangeName("posting_date"), "posting_date");
}

TEST_F(Naming, TheSheetSchemeJoinsSheetPartPrefixAndName) {
  NewWorkbook({"2024 Q1-Sales & Cost+Tax"});
  list->let_SheetRangeNames(true);
  list->let_RangePrefix("ABC_");
  EXPECT_EQ(list->FullRangeName("posting_date"), "_2024_Q1_Sales___CostplusTax__ABC_posting_date");
}

TEST_F(Naming, FullRangeNameAsksTheHostForTheSheetNameAlone) {
  list->let_SheetRangeNames(true);
  EXPECT_THAT(CallsOf([&] { list->FullRangeName("a"); }), ElementsAre("Worksheet.Name get"));
  list->let_SheetRangeNames(false);
  EXPECT_THAT(CallsOf([&] { list->FullRangeName("a"); }), IsEmpty());
}

TEST_F(Naming, TheSheetSchemeWithoutASheetFails) {
  list->let_SheetRangeNames(true);
  list->set_ActSheet({});
  const Error error = ErrorOf([&] { list->FullRangeName("a"); });
  EXPECT_EQ(error.Number(), 91);
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ FullRangeName of Class Module "
                                           "clsInterfaceRangeList Line#:[0-9]+"));
}

TEST_F(Naming, CorrectRangeNamesGivesAPlainNameTheSheetUnderIt) {
  Declare("code");
  Define("x_code", "=Sheet2!$A$1:$A$3");
  list->CorrectRangeNames();
  EXPECT_FALSE(HasName("x_code"));
  EXPECT_EQ(RefersTo("Sheet2__x_code"), "=Sheet2!$A$1:$A$3");
  EXPECT_TRUE(list->get_UsingSheetRangeNames());
  EXPECT_FALSE(list->get_SheetRangeNames());
}

TEST_F(Naming, CorrectRangeNamesGivesANameTheSheetOnWhichItLiesAndLeavesAPrefixOut) {
  Declare("code");
  Define("Old_Sheet__ABC_code", "=Sheet2!$B$2");
  list->CorrectRangeNames();
  EXPECT_FALSE(HasName("Old_Sheet__ABC_code"));
  EXPECT_EQ(RefersTo("Sheet2__code"), "=Sheet2!$B$2");
}

TEST_F(Naming, CorrectRangeNamesLeavesANameAloneThatEqualsADeclaredName) {
  Declare("code");
  Define("code", "=Sheet1!$A$1");
  list->CorrectRangeNames();
  EXPECT_TRUE(HasName("code"));
}

TEST_F(Naming, CorrectRangeNamesRenamesADeclaredNameWhoseEndAnotherDeclaredNameMatches) {
  Declare("nominal_code");
  Declare("code");
  Define("nominal_code", "=Sheet1!$A$1");
  list->CorrectRangeNames();
  EXPECT_FALSE(HasName("nominal_code"));
  EXPECT_TRUE(HasName("Sheet1__nominal_code"));
}

TEST_F(Naming, CorrectRangeNamesLeavesANameWithTheRightSheetPartAndItsArea) {
  Declare("code");
  Define("Sheet2__code", "=Sheet2!$C$3:$C$10");
  list->CorrectRangeNames();
  EXPECT_EQ(RefersTo("Sheet2__code"), "=Sheet2!$C$3:$C$10");
}

TEST_F(Naming, TheFirstRecordInListOrderWhoseNameEndsTheWorkbookNameWins) {
  Declare("code");
  Declare("nominal_code");
  Define("Other__nominal_code", "=Sheet1!$A$1");
  list->CorrectRangeNames();
  EXPECT_TRUE(HasName("Sheet1__code"));
  EXPECT_FALSE(HasName("Other__nominal_code"));
}

TEST_F(Naming, CorrectRangeNamesComparesWithRegardToCase) {
  Declare("Code");
  Define("x_code", "=Sheet1!$A$1");
  list->CorrectRangeNames();
  EXPECT_TRUE(HasName("x_code"));
}

TEST_F(Naming, CorrectRangeNamesPassesOverNamesWithoutCells) {
  Declare("code");
  host.DefineConstant(workbook, "x_code", "=12.5");
  Define("y_code", "=Sheet1!$A$1");
  list->CorrectRangeNames();
  EXPECT_TRUE(HasName("x_code"));
  EXPECT_TRUE(HasName("Sheet1__y_code"));
}

TEST_F(Naming, CorrectRangeNamesCallsTheHostInThisOrder) {
  Declare("code");
  Define("Old__code", "=Sheet1!$A$1");
  EXPECT_THAT(
      CallsOf([&] { list->CorrectRangeNames(); }),
      ElementsAre("Worksheet.Parent get", "Workbook.Application get", "Application.Names get",
                  "Names enumerate", "Name.RefersToRange get", "Range.Address get", "Name.Name get",
                  "Range.Parent get", "Worksheet.Name get", "Worksheet.Range get \"Old__code\"",
                  "Worksheet.Name get", "Range.Name let \"Sheet1__code\"", "Worksheet.Parent get",
                  "Workbook.Names get \"Old__code\"", "Name.Delete call"));
}

TEST_F(Naming, AFailureToReachTheNamesIsReportedByCorrectRangeNames) {
  host.Calls().FailMember("Application.Names", 1004, "no names");
  const Error error = ErrorOf([&] { list->CorrectRangeNames(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_THAT(error.Source(), MatchesRegex(".*\r\nCorrectRangeNames of Class Module "
                                           "clsInterfaceRangeList Line#:[0-9]+"));
  EXPECT_FALSE(list->get_UsingSheetRangeNames());
}

TEST_F(Naming, AFailureOfTheAddressAloneIsIgnored) {
  Declare("code");
  Define("x_code", "=Sheet1!$A$1");
  host.Calls().FailMember("Range.Address", 1004, "no address");
  list->CorrectRangeNames();
  EXPECT_TRUE(HasName("Sheet1__x_code"));
}

TEST_F(Naming, AFailureInARenameGoesStraightToTheCallerAndLeavesWhatIsRenamed) {
  Declare("code");
  Define("a_code", "=Sheet1!$A$1");
  Define("b_code", "=Sheet1!$A$2");
  host.Calls().FailMember("Name.Delete", 1004, "protected");
  const Error error = ErrorOf([&] { list->CorrectRangeNames(); });
  EXPECT_EQ(error.Description(), "protected");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ .*\r\nRenameRangeForSheet of Class "
                                           "Module clsInterfaceRangeList Line#:[0-9]+"));
  EXPECT_TRUE(HasName("Sheet1__a_code"));
  EXPECT_TRUE(HasName("b_code"));
  EXPECT_FALSE(HasName("Sheet1__b_code"));
  EXPECT_FALSE(list->get_UsingSheetRangeNames());
}

TEST_F(Naming, RenameNamesForNewSheetRenamesWhatIsThereAndReportsNothing) {
  Declare("missing");
  Declare("code");
  Declare("constant");
  Define("Sheet1__P_code", "=Sheet1!$A$1");
  Define("Sheet1__P_undeclared", "=Sheet1!$A$2");
  host.DefineConstant(workbook, "Sheet1__P_constant", "=1");
  list->let_RangePrefix("P_");
  list->RenameNamesForNewSheet("New Name");
  EXPECT_EQ(RefersTo("New_Name__P_code"), "=Sheet1!$A$1");
  EXPECT_FALSE(HasName("Sheet1__P_code"));
  EXPECT_TRUE(HasName("Sheet1__P_undeclared"));
  EXPECT_TRUE(HasName("Sheet1__P_constant"));
  EXPECT_FALSE(list->get_UsingSheetRangeNames());
}

TEST_F(Naming, RenameNamesForNewSheetPassesAFailedRenameOverInSilence) {
  Declare("a");
  Declare("b");
  Define("Sheet1__a", "=Sheet1!$A$1");
  Define("Sheet1__b", "=Sheet1!$A$2");
  host.Calls().FailMember("Name.RefersToRange", 1004, "no");
  list->RenameNamesForNewSheet("X");
  EXPECT_TRUE(HasName("Sheet1__a"));
  host.Calls().ClearFailures();
  list->set_ActSheet({});
  list->RenameNamesForNewSheet("X");
  EXPECT_TRUE(HasName("Sheet1__a"));
}

TEST_F(Naming, RenameNamesForNewSheetPassesOverOneRangeForWhichTheSheetFails) {
  Declare("first");
  Declare("second");
  Define("Sheet1__first", "=Sheet1!$A$1");
  Define("Sheet1__second", "=Sheet1!$A$2");
  host.Calls().FailCall(1, 1004, "busy");
  list->RenameNamesForNewSheet("X");
  EXPECT_TRUE(HasName("Sheet1__first"));
  EXPECT_TRUE(HasName("X__second"));
}

TEST_F(Naming, RenameNamesForNewSheetRenamesInPlace) {
  Declare("a");
  Define("Sheet1__a", "=Sheet1!$A$1");
  EXPECT_THAT(
      CallsOf([&] { list->RenameNamesForNewSheet("X"); }),
      ElementsAre("Worksheet.Name get", "Worksheet.Parent get", "Workbook.Names get \"Sheet1__a\"",
                  "Name.RefersToRange get", "Name.Name let \"X__a\""));
}

}  // namespace
}  // namespace rangewerks::tests
