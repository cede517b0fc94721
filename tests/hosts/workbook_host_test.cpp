// The workbook in memory as a whole: lifetimes, what only the Host can set, limits, wrong calls.
#include <gmock/gmock.h>

#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"

namespace rangewerks::tests {
namespace {

using automation::Array;
using automation::ErrorValue;
using hosts::workbook::Host;
using testing::ElementsAre;

constexpr std::int32_t kRefused = 1004;

class WorkbookHostTest : public testing::Test {
 protected:
  WorkbookHostTest() {
    book_ = host_.AddWorkbook("Ledger", {"Sheet1", "Sheet2"});
    sheet_ = GetObject(book_, "ActiveSheet");
  }
  Object Cells(const char* address) { return GetObject(sheet_, "Range", {address}); }

  Host host_;
  Object book_;
  Object sheet_;
};

// --- objects -------------------------------------------------------------------------------------

TEST(WorkbookHost, ObjectsOutliveIt) {
  Object cell;
  {
    Host host;
    const Object sheet = GetObject(host.AddWorkbook("Ledger", {"Sheet1"}), "ActiveSheet");
    cell = GetObject(sheet, "Range", {"A1"});
  }
  Let(cell, "Value", 12.5);
  EXPECT_EQ(Get(cell, "Value"), Variant(12.5));
  EXPECT_EQ(GetText(GetObject(GetObject(cell, "Parent"), "Parent"), "Name"), "Ledger");
}

TEST_F(WorkbookHostTest, ASheetIsAlwaysTheSameObject) {
  EXPECT_EQ(GetObject(Cells("A1"), "Parent"), sheet_);
  EXPECT_EQ(GetObject(book_, "Sheets", {1}), sheet_);
  EXPECT_EQ(GetObject(sheet_, "Parent"), book_);
  EXPECT_EQ(GetObject(book_, "Application"), host_.Application());
}

TEST_F(WorkbookHostTest, WithoutAWorkbookNothingIsActive) {
  const Host empty;
  EXPECT_EQ(Get(empty.Application(), "ActiveSheet"), Variant(Object()));
  EXPECT_EQ(Get(empty.Application(), "ActiveWorkbook"), Variant(Object()));
  EXPECT_EQ(ErrorNumberOf([&] { Get(empty.Application(), "Names"); }), kRefused);
}

TEST_F(WorkbookHostTest, ADeletedSheetRefusesEverything) {
  const Object cell = Cells("A1");
  Call(sheet_, "Delete");
  EXPECT_EQ(ErrorNumberOf([&] { Get(sheet_, "Name"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Get(cell, "Value"); }), kRefused);
  EXPECT_EQ(GetText(GetObject(host_.Application(), "ActiveSheet"), "Name"), "Sheet2");
}

TEST_F(WorkbookHostTest, TheLastSheetCanNotBeDeleted) {
  Call(sheet_, "Delete");
  EXPECT_EQ(ErrorNumberOf([&] { Call(GetObject(book_, "ActiveSheet"), "Delete"); }), kRefused);
}

TEST_F(WorkbookHostTest, WorkbooksAreFoundWalkedAndAdded) {
  const Object books = GetObject(host_.Application(), "Workbooks");
  const Object added = Call(books, "Add").AsObject();
  EXPECT_EQ(GetText(added, "Name"), "Book2");
  EXPECT_EQ(GetObject(host_.Application(), "ActiveWorkbook"), added);
  EXPECT_EQ(GetObject(books, "Item", {"ledger"}), book_);
  EXPECT_EQ(GetObject(books, "Item", {2}), added);
  EXPECT_THAT(Elements(books), ElementsAre(Variant(book_), Variant(added)));
  EXPECT_EQ(ErrorNumberOf([&] { Get(books, "Item", {"Other"}); }), 9);
}

// --- what only the host can set ------------------------------------------------------------------

TEST_F(WorkbookHostTest, InternationalAnswersWithWhateverWasSet) {
  host_.SetInternational(32, 7);
  EXPECT_EQ(Get(host_.Application(), "International", {32}), Variant(7));
  EXPECT_EQ(host_.CurrentLocale().dateOrder, automation::DateOrder::MonthFirst);
  host_.SetInternational(32, 2);
  EXPECT_EQ(host_.CurrentLocale().dateOrder, automation::DateOrder::YearFirst);
  host_.SetInternational(5, ";");
  EXPECT_EQ(GetText(host_.Application(), "International", {5}), ";");
  EXPECT_EQ(host_.CurrentLocale().listSeparator, ";");
  EXPECT_EQ(ErrorNumberOf([&] { Get(host_.Application(), "International", {999}); }), kRefused);
}

TEST_F(WorkbookHostTest, TheVersionCanBeSet) {
  EXPECT_EQ(GetText(host_.Application(), "Version"), "16.0");
  host_.SetVersion("11.0");
  EXPECT_EQ(GetText(host_.Application(), "Version"), "11.0");
}

TEST_F(WorkbookHostTest, OnlyAFormulaHasAShownValueOfItsOwn) {
  EXPECT_EQ(ErrorNumberOf([&] { host_.SetShownValue(Cells("A1"), 1.0); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { host_.SetShownValue(Cells("A1:A2"), 1.0); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { host_.SetErrorValue(sheet_, 2007); }), kRefused);
}

TEST_F(WorkbookHostTest, AFormulaMayShowAnError) {
  Let(Cells("A1"), "Formula", "=1/0");
  host_.SetShownValue(Cells("A1"), ErrorValue::FromNumber(2007));
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant(ErrorValue::FromNumber(2007)));
  EXPECT_EQ(Get(Cells("A1"), "HasFormula"), Variant(true));
}

TEST_F(WorkbookHostTest, AWorkbookNameIsTakenOnce) {
  EXPECT_EQ(ErrorNumberOf([&] { host_.AddWorkbook("LEDGER", {"Sheet1"}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { host_.AddWorkbook("Other", {}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { host_.AddWorkbook("Other", {"a", "A"}); }), kRefused);
  EXPECT_EQ(GetObject(host_.Application(), "ActiveWorkbook"), book_);
}

// --- ranges --------------------------------------------------------------------------------------

TEST_F(WorkbookHostTest, ItemOfABlockGoesAlongTheRowsFirst) {
  const Object block = Cells("B2:C3");
  EXPECT_EQ(GetText(GetObject(block, "Item", {2}), "Address"), "$C$2");
  EXPECT_EQ(GetText(GetObject(block, "Item", {3}), "Address"), "$B$3");
  EXPECT_EQ(GetText(GetObject(block, "Item", {5}), "Address"), "$B$4");
  EXPECT_EQ(GetText(GetObject(block, "Item", {0}), "Address"), "$C$1");
  EXPECT_EQ(GetText(GetObject(block, "Item", {2, 1}), "Address"), "$B$3");
}

TEST_F(WorkbookHostTest, RowsAndColumnsAreRangesOfTheirOwn) {
  const Object block = Cells("B2:D9");
  EXPECT_EQ(GetText(GetObject(GetObject(block, "Rows"), "Item", {2}), "Address"), "$B$3:$D$3");
  EXPECT_EQ(GetText(GetObject(GetObject(block, "Columns"), "Item", {3}), "Address"), "$D$2:$D$9");
  EXPECT_EQ(GetText(GetObject(block, "EntireRow"), "Address"), "$2:$9");
}

TEST_F(WorkbookHostTest, AWalkOverARangeVisitsItsElements) {
  std::vector<std::string> addresses;
  for (const Variant& cell : Elements(Cells("B2:C3"))) {
    addresses.push_back(GetText(cell.AsObject(), "Address"));
  }
  EXPECT_THAT(addresses, ElementsAre("$B$2", "$C$2", "$B$3", "$C$3"));
  EXPECT_EQ(Elements(GetObject(Cells("B2:C3"), "Rows")).size(), 2U);
}

TEST_F(WorkbookHostTest, WholeRowsAndColumnsHaveShortAddresses) {
  for (const char* address : {"$A:$C", "$3:$5", "$XFD$1048576"}) {
    EXPECT_EQ(GetText(Cells(address), "Address"), address);
  }
}

TEST_F(WorkbookHostTest, TwoCornersMakeARange) {
  EXPECT_EQ(GetText(GetObject(sheet_, "Range", {"C5", Cells("B2")}), "Address"), "$B$2:$C$5");
  const Object elsewhere = GetObject(GetObject(book_, "Sheets", {"Sheet2"}), "Range", {"A1"});
  EXPECT_EQ(ErrorNumberOf([&] { Get(sheet_, "Range", {"A1", elsewhere}); }), kRefused);
}

TEST_F(WorkbookHostTest, AnAddressMayNameThisSheetOnly) {
  EXPECT_EQ(GetText(Cells("Sheet1!$B$2"), "Address"), "$B$2");
  EXPECT_EQ(ErrorNumberOf([&] { Cells("Sheet2!$B$2"); }), kRefused);
}

TEST_F(WorkbookHostTest, AnIndexedWriteGoesToTheCell) {
  const automation::Member kCells{"Cells"};
  sheet_.Let(kCells, {2, 3}, 12.5);
  EXPECT_EQ(Get(Cells("C2"), "Value"), Variant(12.5));
  Cells("A1:A9").Let(automation::Member::Default(), {4}, "x");
  EXPECT_EQ(Get(Cells("A4"), "Value"), Variant("x"));
}

TEST_F(WorkbookHostTest, CellsOfASheetBehindAreNotSelected) {
  const Object elsewhere = GetObject(GetObject(book_, "Sheets", {"Sheet2"}), "Range", {"A1"});
  EXPECT_EQ(ErrorNumberOf([&] { Call(elsewhere, "Select"); }), kRefused);
}

TEST_F(WorkbookHostTest, EachSheetKeepsItsSelection) {
  Call(Cells("C3"), "Select");
  Call(GetObject(book_, "Sheets", {"Sheet2"}), "Activate");
  EXPECT_EQ(GetText(GetObject(host_.Application(), "Selection"), "Address"), "$A$1");
  Call(sheet_, "Activate");
  EXPECT_EQ(GetText(GetObject(host_.Application(), "Selection"), "Address"), "$C$3");
}

// --- limits and wrong calls ----------------------------------------------------------------------

TEST_F(WorkbookHostTest, ASheetEndsAtItsLastCell) {
  Let(Cells("XFD1048576"), "Value", 1.0);
  EXPECT_EQ(ErrorNumberOf([&] { Get(Cells("XFD1048576"), "Offset", {1}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Get(Cells("A1"), "Resize", {1048577}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Cells("XFE1"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Cells("A1048577"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Cells("A99999999999999999999"); }), kRefused);
}

TEST_F(WorkbookHostTest, TheWholeSheetIsTooMuchAtOnceButCanBeClearedAndAsked) {
  Let(Cells("B2"), "Value", 1.0);
  const Object all = GetObject(sheet_, "Cells");
  EXPECT_EQ(ErrorNumberOf([&] { Get(all, "Value"); }), 7);
  EXPECT_EQ(ErrorNumberOf([&] { Let(all, "Value", 1.0); }), 7);
  EXPECT_EQ(ErrorNumberOf([&] { Get(all, "Count"); }), 6);
  EXPECT_EQ(Get(all, "HasFormula"), Variant(false));
  Call(all, "ClearContents");
  EXPECT_TRUE(Get(Cells("B2"), "Value").IsEmpty());
}

TEST_F(WorkbookHostTest, WrongArgumentsAreToldApart) {
  EXPECT_EQ(ErrorNumberOf([&] { Get(sheet_, "Range"); }), 449);
  EXPECT_EQ(ErrorNumberOf([&] { Get(sheet_, "Range", {"A1", "A2", "A3"}); }), 450);
  EXPECT_EQ(ErrorNumberOf([&] { Get(Cells("A1"), "Item", {"abc"}); }), 13);
  EXPECT_EQ(ErrorNumberOf([&] { Elements(sheet_); }), 451);
  EXPECT_EQ(ErrorNumberOf([&] { Let(Cells("A1"), "Address", "$A$1"); }), 438);
  EXPECT_EQ(ErrorNumberOf([&] {
              Call(host_.Application(), "Intersect", {Cells("A1"), 5});
            }),
            kRefused);
}

}  // namespace
}  // namespace rangewerks::tests
