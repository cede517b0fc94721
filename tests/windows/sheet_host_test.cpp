// SheetHost.dll through COM: what the contract suite doesn't ask of it.
#include "windows/sheet_host_under_test.h"

#include <gtest/gtest.h>

#include "hosts/late_calls.h"
#include "support/error_of.h"
#include "systems/windows/windows_system.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using automation::Member;

class SheetHost : public ::testing::Test {
 protected:
  SheetHost() {
    Call(GetObject(application_, "Workbooks"), "Add");
    sheet_ = GetObject(application_, "ActiveSheet");
    Call(testing_, "ResetCalls");
  }

  const Object application_ = NewSheetHost();
  const Object testing_ = GetObject(application_, "Testing");
  Object sheet_;
};

TEST_F(SheetHost, GivesEachCallerAProgramOfItsOwn) {
  const Object other = NewSheetHost();
  EXPECT_EQ(GetLong(GetObject(other, "Workbooks"), "Count"), 0);
  EXPECT_EQ(GetLong(GetObject(application_, "Workbooks"), "Count"), 1);
  EXPECT_EQ(GetLong(GetObject(other, "Testing"), "CallCount"), 2);
}

TEST_F(SheetHost, CountsEachCallOnceAndItsTestingNot) {
  Let(testing_, "LogCalls", true);
  const Object cells = GetObject(sheet_, "Range", {"A5:A9"});
  Let(GetObject(cells, "Cells", {1, 1}), "Value", 12.5);
  Elements(GetObject(sheet_, "Names"));
  EXPECT_EQ(GetText(GetObject(application_, "Testing"), "Calls"),
            "Worksheet.Range get \"A5:A9\"\r\nRange.Cells get 1, 1\r\nRange.Value let 12.5\r\n"
            "Worksheet.Names get\r\nNames enumerate");
  EXPECT_EQ(GetLong(testing_, "CallCount"), 5);
  EXPECT_EQ(Get(testing_, "CallCount", {"range.value"}), Variant(1));
}

TEST_F(SheetHost, FailsOnRequestWithNumberSourceAndDescription) {
  Call(testing_, "FailMember", {"Range.Select", 1004, "can't select"});
  Error error = ErrorOf([&] { Call(GetObject(sheet_, "Range", {"A1"}), "Select"); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Source(), "Workbook");
  EXPECT_EQ(error.Description(), "can't select");
  Call(testing_, "ClearFailures");
  Call(testing_, "FailCall", {2, static_cast<std::int32_t>(0x80040000), "second"});
  Get(sheet_, "Name");
  error = ErrorOf([&] { Get(sheet_, "Name"); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x80040000));
  EXPECT_EQ(error.Description(), "second");
  EXPECT_EQ(GetText(sheet_, "Name"), "Sheet1");
}

TEST_F(SheetHost, TellsASelectedShapeFromCells) {
  EXPECT_EQ(GetObject(application_, "Selection").TypeName(), "Range");
  Call(testing_, "SelectShape");
  const Object shape = GetObject(application_, "Selection");
  EXPECT_EQ(shape.TypeName(), "Rectangle");
  EXPECT_EQ(ErrorNumberOf([&] { Get(shape, "Rows"); }), 438);
}

TEST_F(SheetHost, RunsUnderThePersonsLocaleUntilItIsTold) {
  const automation::Locale person = systems::WindowsSystem().CurrentLocale();
  EXPECT_EQ(GetText(application_, "International", {3}), person.decimalSeparator);
  EXPECT_EQ(GetText(application_, "International", {5}), person.listSeparator);
  EXPECT_EQ(Get(application_, "International", {32}),
            Variant(static_cast<std::int32_t>(person.dateOrder)));
  Call(testing_, "SetInternational", {3, ";"});
  EXPECT_EQ(GetText(application_, "International", {3}), ";");
}

TEST_F(SheetHost, KnowsItsOwnObjectsWhenTheyComeBack) {
  const Object range = GetObject(sheet_, "Range", {"A1"});
  EXPECT_EQ(GetObject(range, "Parent"), sheet_);
  const Object corner = GetObject(sheet_, "Range", {"C3"});
  EXPECT_EQ(GetText(GetObject(sheet_, "Range", {range, corner}), "Address"), "$A$1:$C$3");
}

}  // namespace
}  // namespace rangewerks::tests
