// Application.Testing of the workbook in memory, and the members that scripts set a scene with.
#include <gmock/gmock.h>

#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"
#include "hosts/workbook/testing.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using automation::ErrorValue;
using automation::Member;
using hosts::workbook::Host;
using ::testing::ElementsAre;

constexpr std::int32_t kRefused = 1004;
constexpr std::int32_t kNoSuchMember = 438;

class WorkbookScript : public ::testing::Test {
 protected:
  WorkbookScript() {
    book_ = Call(GetObject(application_, "Workbooks"), "Add").AsObject();
    sheet_ = GetObject(book_, "ActiveSheet");
    Call(testing_, "ResetCalls");
  }
  Object Cells(const char* address) const { return GetObject(sheet_, "Range", {address}); }
  std::vector<std::string> SheetNames() const {
    std::vector<std::string> names;
    for (const Variant& sheet : Elements(GetObject(book_, "Sheets"))) {
      names.push_back(GetText(sheet.AsObject(), "Name"));
    }
    return names;
  }

  const Object application_ = Host().Application();
  const Object testing_ = GetObject(application_, "Testing");
  Object book_;
  Object sheet_;
};

class WorkbookTesting : public WorkbookScript {};

// --- calls ---------------------------------------------------------------------------------------

TEST_F(WorkbookTesting, CallsAreALineEachSinceTheReset) {
  Let(testing_, "LogCalls", true);
  Get(sheet_, "Name");
  Call(testing_, "ResetCalls");
  AddName(GetObject(book_, "Names"), "Sheet1__Code", "=Sheet1!$A$1");
  Let(Cells("Sheet1__Code"), "Value", 12.5);
  EXPECT_EQ(GetText(testing_, "Calls"),
            "Workbook.Names get\r\n"
            "Names.Add call Name:=\"Sheet1__Code\", RefersTo:=\"=Sheet1!$A$1\"\r\n"
            "Worksheet.Range get \"Sheet1__Code\"\r\n"
            "Range.Value let 12.5");
  Call(testing_, "ResetCalls");
  EXPECT_EQ(GetText(testing_, "Calls"), "");
}

TEST_F(WorkbookTesting, CallsAreWrittenDownOnlyWhileLogging) {
  EXPECT_EQ(Get(testing_, "LogCalls"), Variant(false));
  Get(sheet_, "Name");
  Let(testing_, "LogCalls", true);
  EXPECT_EQ(Get(testing_, "LogCalls"), Variant(true));
  Get(sheet_, "Index");
  Let(testing_, "LogCalls", false);
  Get(sheet_, "Name");
  EXPECT_EQ(GetText(testing_, "Calls"), "Worksheet.Index get");
  EXPECT_EQ(Get(testing_, "CallCount"), Variant(3));
}

TEST_F(WorkbookTesting, CallCountIsOfAllMembersOrOfOne) {
  Get(sheet_, "Name");
  Get(sheet_, "Name");
  Get(sheet_, "Index");
  EXPECT_EQ(Get(testing_, "CallCount"), Variant(3));
  EXPECT_EQ(Get(testing_, "CallCount", {"worksheet.name"}), Variant(2));
  EXPECT_EQ(Get(testing_, "CallCount", {"Range.Value"}), Variant(0));
  EXPECT_EQ(ErrorNumberOf([&] { Get(testing_, "CallCount", {"Range"}); }), 5);
}

TEST_F(WorkbookTesting, CallsOnItAndItsFetchingAreNeitherCountedNorMadeToFail) {
  Let(testing_, "LogCalls", true);
  Call(testing_, "FailCall", {1, kRefused, "busy"});
  Call(testing_, "FailMember", {"Application.Testing", kRefused, "busy"});
  const Object again = GetObject(application_, "Testing");
  EXPECT_EQ(Get(again, "CallCount"), Variant(0));
  EXPECT_EQ(GetText(again, "Calls"), "");
  EXPECT_EQ(ErrorNumberOf([&] { Get(sheet_, "Name"); }), kRefused) << "the next call on the host";
}

// --- failures on request -------------------------------------------------------------------------

TEST_F(WorkbookTesting, FailCallMakesTheOneCallFailWithItsNumberAndDescription) {
  Call(testing_, "FailCall", {2, 50290, "The application is busy."});
  Get(sheet_, "Name");
  const Error error = ErrorOf([&] { Get(sheet_, "Name"); });
  EXPECT_EQ(error.Number(), 50290);
  EXPECT_EQ(error.Description(), "The application is busy.");
  EXPECT_EQ(error.Source(), "Workbook");
  EXPECT_EQ(GetText(sheet_, "Name"), "Sheet1");
}

TEST_F(WorkbookTesting, FailCallCountsFromTheNextCallOn) {
  for (const std::int32_t call : {0, -1}) {
    EXPECT_EQ(ErrorNumberOf([&] { Call(testing_, "FailCall", {call, kRefused, "never"}); }), 5);
  }
}

TEST_F(WorkbookTesting, FailMemberHoldsUntilClearFailures) {
  Call(testing_, "FailMember", {"Range.Select", kRefused, "can't select"});
  Call(testing_, "FailCall", {5, 7, "later"});
  const Object cell = Cells("A1");
  EXPECT_EQ(ErrorOf([&] { Call(cell, "Select"); }).Description(), "can't select");
  EXPECT_EQ(ErrorNumberOf([&] { Call(cell, "Select"); }), kRefused);
  Call(testing_, "ClearFailures");
  for (int call = 0; call < 5; ++call) Call(cell, "Select");
}

TEST_F(WorkbookTesting, FailMemberWantsATypeAndItsMember) {
  const Error error = ErrorOf([&] { Call(testing_, "FailMember", {"Select", kRefused, ""}); });
  EXPECT_EQ(error.Number(), 5);
  EXPECT_EQ(error.Description(), "\"Select\" doesn't name a type and its member");
}

// --- the scene -----------------------------------------------------------------------------------

TEST_F(WorkbookTesting, SetsWhatAFormulaShowsAndWhatErrorACellHolds) {
  Let(Cells("A1"), "Formula", "=B1");
  Call(testing_, "SetShownValue", {Cells("A1"), 12.5});
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant(12.5));
  Call(testing_, "SetErrorValue", {Cells("A2"), 2007});
  EXPECT_EQ(Get(Cells("A2"), "Value"), Variant(ErrorValue::FromNumber(2007)));
  EXPECT_EQ(ErrorNumberOf([&] { Call(testing_, "SetShownValue", {Cells("A3"), 1.0}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(testing_, "SetErrorValue", {sheet_, 2007}); }), kRefused);
}

TEST_F(WorkbookTesting, SetsTheLocaleAndTheVersion) {
  Call(testing_, "SetInternational", {3, ","});
  Call(testing_, "SetInternational", {4, "."});
  EXPECT_EQ(GetText(application_, "International", {3}), ",");
  Let(Cells("A1"), "Value", "12,5");
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant(12.5));
  Call(testing_, "SetVersion", {"11.0"});
  EXPECT_EQ(GetText(application_, "Version"), "11.0");
}

TEST_F(WorkbookTesting, TheMacroProjectIsRefusedUntilItIsTrusted) {
  EXPECT_EQ(Get(testing_, "TrustVBProject"), Variant(false));
  const Error untrusted = ErrorOf([&] { Get(book_, "VBProject"); });
  EXPECT_EQ(untrusted.Number(), kRefused);
  EXPECT_EQ(untrusted.Description(), "Programmatic access to Visual Basic Project is not trusted");
  Let(testing_, "TrustVBProject", true);
  EXPECT_EQ(Get(testing_, "TrustVBProject"), Variant(true));
  EXPECT_EQ(GetObject(book_, "VBProject").TypeName(), "VBProject");
}

TEST_F(WorkbookTesting, ASelectedShapeIsNoRangeUntilCellsAreSelected) {
  Call(Cells("B2"), "Select");
  Call(testing_, "SelectShape");
  const Object shape = GetObject(application_, "Selection");
  EXPECT_EQ(shape.TypeName(), "Rectangle");
  EXPECT_EQ(GetText(shape, "Name"), "Rectangle 1");
  EXPECT_EQ(GetObject(shape, "Parent"), sheet_);
  EXPECT_EQ(GetObject(shape, "Application"), application_);
  for (const char* member : {"Rows", "Address", "Value", "Cells"}) {
    EXPECT_EQ(ErrorNumberOf([&] { Get(shape, member); }), kNoSuchMember) << member;
  }
  Call(Cells("C3"), "Select");
  EXPECT_EQ(GetText(GetObject(application_, "Selection"), "Address"), "$C$3");
  Call(GetObject(book_, "Sheets"), "Add");
  Call(sheet_, "Delete");
  EXPECT_EQ(ErrorNumberOf([&] { Get(shape, "Name"); }), kRefused);
}

TEST_F(WorkbookTesting, AShapeIsSelectedOnTheSheetInFrontAlone) {
  Call(GetObject(book_, "Sheets"), "Add");
  Call(testing_, "SelectShape");
  Call(sheet_, "Activate");
  EXPECT_EQ(GetObject(application_, "Selection").TypeName(), "Range");
}

TEST(WorkbookTestingAlone, NeedsAnOpenWorkbookToSelectAShape) {
  const Object testing = GetObject(Host().Application(), "Testing");
  EXPECT_EQ(ErrorNumberOf([&] { Call(testing, "SelectShape"); }), kRefused);
}

TEST(WorkbookTestingAlone, EachProgramHasACallLogOfItsOwn) {
  const Object one = Host().Application();
  const Object other = Host().Application();
  Get(one, "Name");
  EXPECT_EQ(Get(GetObject(one, "Testing"), "CallCount"), Variant(1));
  EXPECT_EQ(Get(GetObject(other, "Testing"), "CallCount"), Variant(0));
}

TEST(WorkbookTestingAlone, EveryMemberHasAHelpText) {
  const Object testing = GetObject(Host().Application(), "Testing");
  EXPECT_EQ(testing.TypeName(), "Testing");
  const auto entries = testing.As<hosts::workbook::Testing>()->Members().Entries();
  EXPECT_EQ(entries.size(), 15U);
  for (const auto& entry : entries) EXPECT_FALSE(entry.help.empty()) << entry.name.Name();
}

// --- what scripts build a workbook with ----------------------------------------------------------

TEST_F(WorkbookScript, SheetsAddPutsANewSheetAheadOfTheOneInFrontAndBringsItThere) {
  const Object sheets = GetObject(book_, "Sheets");
  const Object added = Call(sheets, "Add").AsObject();
  EXPECT_EQ(GetText(added, "Name"), "Sheet2");
  EXPECT_EQ(GetObject(application_, "ActiveSheet"), added);
  EXPECT_THAT(SheetNames(), ElementsAre("Sheet2", "Sheet1"));
}

TEST_F(WorkbookScript, SheetsAddTakesTheSheetToStandBeforeOrAfter) {
  const Object sheets = GetObject(book_, "Sheets");
  Call(sheets, "Add", {Argument::Omitted(), sheet_});
  EXPECT_THAT(SheetNames(), ElementsAre("Sheet1", "Sheet2"));
  sheets.Call(Member("Add"), {}, {{Member("After"), sheet_}});
  EXPECT_THAT(SheetNames(), ElementsAre("Sheet1", "Sheet3", "Sheet2"));
  Call(sheets, "Add", {sheet_});
  EXPECT_THAT(SheetNames(), ElementsAre("Sheet4", "Sheet1", "Sheet3", "Sheet2"));
}

TEST_F(WorkbookScript, SheetsAddFindsAFreeName) {
  Let(sheet_, "Name", "sheet2");
  Call(GetObject(book_, "Sheets"), "Add");
  EXPECT_THAT(SheetNames(), ElementsAre("Sheet3", "sheet2"));
}

TEST_F(WorkbookScript, SheetsAddRefusesAPlaceThatIsNone) {
  const Object sheets = GetObject(book_, "Sheets");
  const Object other = Call(GetObject(application_, "Workbooks"), "Add").AsObject();
  const Error elsewhere = ErrorOf([&] { Call(sheets, "Add", {GetObject(other, "ActiveSheet")}); });
  EXPECT_EQ(elsewhere.Number(), kRefused);
  EXPECT_EQ(elsewhere.Description(),
            "A sheet is added before or after a sheet of workbook \"Book1\", not a value of the "
            "type Worksheet that isn't one of its");
  EXPECT_EQ(ErrorOf([&] { Call(sheets, "Add", {"Sheet1"}); }).Description(),
            "A sheet is added before or after a sheet of workbook \"Book1\", not a value of the "
            "type String");
  EXPECT_EQ(ErrorOf([&] {
              Call(sheets, "Add", {sheet_, sheet_});
            }).Description(),
            "A sheet is added before another one or after it, not both");
  EXPECT_THAT(SheetNames(), ElementsAre("Sheet1"));
}

TEST_F(WorkbookScript, TheApplicationGivesTheCellsOfTheSheetInFront) {
  EXPECT_EQ(GetText(GetObject(application_, "Range", {"B2:C3"}), "Address"), "$B$2:$C$3");
  EXPECT_EQ(GetText(GetObject(application_, "Range", {"B2", "C3"}), "Address"), "$B$2:$C$3");
  EXPECT_EQ(GetText(GetObject(application_, "Cells", {3, 1}), "Address"), "$A$3");
  application_.Let(Member("Range"), {"B2"}, "x");
  application_.Let(Member("Cells"), {3, 1}, 12.5);
  EXPECT_EQ(Get(Cells("B2"), "Value"), Variant("x"));
  EXPECT_EQ(Get(Cells("A3"), "Value"), Variant(12.5));
  Call(GetObject(book_, "Sheets"), "Add");
  EXPECT_TRUE(Get(GetObject(application_, "Range", {"B2"}), "Value").IsEmpty());
}

TEST_F(WorkbookScript, AWriteToACellOfTheApplicationIsOneCall) {
  Let(testing_, "LogCalls", true);
  application_.Let(Member("Range"), {"B2"}, "x");
  EXPECT_EQ(GetText(testing_, "Calls"), "Application.Range let \"B2\", \"x\"");
}

TEST(WorkbookScriptAlone, CellsWithoutAWorkbookAreRefused) {
  const Object application = Host().Application();
  EXPECT_EQ(ErrorNumberOf([&] { Get(application, "Range", {"A1"}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Get(application, "Cells", {1, 1}); }), kRefused);
}

}  // namespace
}  // namespace rangewerks::tests
