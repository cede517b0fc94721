// Ranges: cells by position, addresses, sizes, moves, names, selection.
#include "hosts/contract.h"

namespace rangewerks::tests {
namespace {

class RangeContract : public HostContract {
 protected:
  static std::string AddressOf(const Object& range) { return GetText(range, "Address"); }
};
CONTRACT_FOR_ALL_HOSTS(RangeContract);

TEST_P(RangeContract, AnAddressIsTakenWithAndWithoutDollars) {
  EXPECT_EQ(AddressOf(Cells("C3")), "$C$3");
  EXPECT_EQ(AddressOf(Cells("$C$3")), "$C$3");
  EXPECT_EQ(AddressOf(Cells("$C$3:$C$10")), "$C$3:$C$10");
  EXPECT_EQ(AddressOf(Cells("c3:d10")), "$C$3:$D$10");
  EXPECT_EQ(AddressOf(Cells("AB12")), "$AB$12");
}

TEST_P(RangeContract, TextThatIsNeitherNameNorAddressFails) {
  for (const char* text : {"", "C", "3", "C0", "C3:", "no such thing", "ZZZZ1"}) {
    EXPECT_TRUE(Fails([&] { Cells(text); })) << text;
  }
}

TEST_P(RangeContract, ItemCountsDownTheColumnFromOne) {
  const Object column = Cells("C3:C10");
  EXPECT_EQ(AddressOf(GetObject(column, "Item", {1})), "$C$3");
  EXPECT_EQ(AddressOf(GetObject(column, "Item", {8})), "$C$10");
}

TEST_P(RangeContract, ItemMayGoBeyondTheEnd) {
  EXPECT_EQ(AddressOf(GetObject(Cells("C3:C10"), "Item", {9})), "$C$11");
  EXPECT_EQ(AddressOf(GetObject(Cells("C3"), "Item", {2})), "$C$4");
}

TEST_P(RangeContract, TheDefaultMemberWithAnIndexIsTheCellAtThatPosition) {
  EXPECT_EQ(AddressOf(GetObject(Cells("C3:C10"), "_Default", {2})), "$C$4");
}

TEST_P(RangeContract, CellsGivesOneCellByRowAndColumn) {
  const Object block = Cells("C3:E10");
  EXPECT_EQ(AddressOf(GetObject(block, "Cells", {1, 1})), "$C$3");
  EXPECT_EQ(AddressOf(GetObject(block, "Cells", {2, 3})), "$E$4");
  EXPECT_EQ(AddressOf(GetObject(block, "Cells", {9, 1})), "$C$11");
}

TEST_P(RangeContract, RowZeroOfCellsIsTheRowAbove) {
  EXPECT_EQ(AddressOf(GetObject(Cells("C3:C10"), "Cells", {0, 1})), "$C$2");
}

TEST_P(RangeContract, CellsAboveTheFirstRowFails) {
  EXPECT_TRUE(Fails([&] { Get(Cells("C1:C10"), "Cells", {0, 1}); }));
}

TEST_P(RangeContract, CellsWithoutArgumentsIsTheSameArea) {
  EXPECT_EQ(AddressOf(GetObject(Cells("C3:C10"), "Cells")), "$C$3:$C$10");
}

TEST_P(RangeContract, RowIsTheNumberOfTheFirstRow) {
  EXPECT_EQ(GetLong(Cells("C3:C10"), "Row"), 3);
}

TEST_P(RangeContract, RowsAndColumnsAreCounted) {
  const Object block = Cells("C3:E10");
  EXPECT_EQ(GetLong(GetObject(block, "Rows"), "Count"), 8);
  EXPECT_EQ(GetLong(GetObject(block, "Columns"), "Count"), 3);
  EXPECT_EQ(GetLong(block, "Count"), 24);
  EXPECT_EQ(GetLong(GetObject(Cells("C3"), "Rows"), "Count"), 1);
}

TEST_P(RangeContract, ResizeKeepsTheFirstCellAndTheWidth) {
  EXPECT_EQ(AddressOf(GetObject(Cells("C3:D10"), "Resize", {2})), "$C$3:$D$4");
  EXPECT_EQ(AddressOf(GetObject(Cells("C3"), "Resize", {5})), "$C$3:$C$7");
}

TEST_P(RangeContract, ResizeToNoRowsOrBeyondTheSheetFails) {
  for (const std::int32_t rows : {0, -1, 1048576}) {
    EXPECT_TRUE(Fails([&] { Get(Cells("C3:C10"), "Resize", {rows}); })) << rows;
  }
  EXPECT_EQ(AddressOf(GetObject(Cells("C3"), "Resize", {1048574})), "$C$3:$C$1048576");
}

TEST_P(RangeContract, OffsetMovesTheArea) {
  EXPECT_EQ(AddressOf(GetObject(Cells("C3:C10"), "Offset", {-1})), "$C$2:$C$9");
  EXPECT_EQ(AddressOf(GetObject(Cells("C3"), "Offset", {2})), "$C$5");
}

TEST_P(RangeContract, OffsetAboveTheFirstRowFails) {
  EXPECT_TRUE(Fails([&] { Get(Cells("C1:C10"), "Offset", {-1}); }));
}

TEST_P(RangeContract, ParentIsTheSheetOfTheCells) {
  EXPECT_EQ(GetText(GetObject(Cells(dataSheet_, "C3"), "Parent"), "Name"), "Data Sheet");
}

TEST_P(RangeContract, ALetOfTheNameDefinesAName) {
  Let(Cells(dataSheet_, "C3:C10"), "Name", "Code");
  const Object cells = GetObject(GetObject(book_, "Names", {"Code"}), "RefersToRange");
  EXPECT_EQ(AddressOf(cells), "$C$3:$C$10");
  EXPECT_EQ(GetText(GetObject(cells, "Parent"), "Name"), "Data Sheet");
}

TEST_P(RangeContract, ALetOfTheNameMovesANameThatExists) {
  Let(Cells("C3"), "Name", "Code");
  Let(Cells(dataSheet_, "D4"), "Name", "Code");
  EXPECT_EQ(GetLong(Names(), "Count"), 1);
  EXPECT_EQ(AddressOf(Cells(dataSheet_, "Code")), "$D$4");
}

TEST_P(RangeContract, CellsCanHaveASecondName) {
  Let(Cells("C3"), "Name", "Code");
  Let(Cells("C3"), "Name", "Sheet1__Code");
  EXPECT_EQ(AddressOf(Cells("Code")), "$C$3");
  EXPECT_EQ(AddressOf(Cells("Sheet1__Code")), "$C$3");
}

TEST_P(RangeContract, ALetOfAWrongNameFailsAndLeavesNone) {
  for (const char* name :
       {"a b", "", "A1", "XFD1048576", "R1C1", "1st", "a-b", "a!b", "Nowhere!a"}) {
    EXPECT_TRUE(Fails([&] { Let(Cells("C3"), "Name", name); })) << name;
  }
  EXPECT_EQ(GetLong(Names(), "Count"), 0);
}

TEST_P(RangeContract, ALetOfANameWithATrailingBlankDefinesItWithoutTheBlank) {
  Let(Cells("C3:C10"), "Name", "Code ");
  EXPECT_EQ(AddressOf(Cells("Code")), "$C$3:$C$10");
  EXPECT_EQ(GetLong(Names(), "Count"), 1);
}

TEST_P(RangeContract, ALetOfTheNameMovesItAlsoWhenItIsWrittenInAnotherCase) {
  Let(Cells("C3"), "Name", "Sheet1__Code");
  Let(Cells("C3:C10"), "Name", "SHEET1__CODE");
  EXPECT_EQ(GetLong(Names(), "Count"), 1);
  EXPECT_EQ(AddressOf(Cells("Sheet1__Code")), "$C$3:$C$10");
}

TEST_P(RangeContract, TheDefaultTextOfTheNameIsTheReferenceWithQuotesWhereNeeded) {
  Let(Cells("C3:C10"), "Name", "Code");
  Let(Cells(dataSheet_, "C3:C10"), "Name", "Quoted");
  Let(Cells(Sheet("O'Brien"), "C3"), "Name", "Doubled");
  EXPECT_EQ(GetText(GetObject(Cells("C3:C10"), "Name"), "_Default"), "=Sheet1!$C$3:$C$10");
  EXPECT_EQ(GetText(GetObject(Cells(dataSheet_, "Quoted"), "Name"), "_Default"),
            "='Data Sheet'!$C$3:$C$10");
  EXPECT_EQ(GetText(GetObject(Cells(Sheet("O'Brien"), "Doubled"), "Name"), "_Default"),
            "='O''Brien'!$C$3");
}

TEST_P(RangeContract, TheNameOfCellsWithoutOneFails) {
  EXPECT_TRUE(Fails([&] { Get(Cells("C3"), "Name"); }));
}

TEST_P(RangeContract, SelectSelectsTheCells) {
  Call(Cells("C3:D4"), "Select");
  const Object selection = GetObject(Application(), "Selection");
  EXPECT_EQ(AddressOf(selection), "$C$3:$D$4");
  EXPECT_EQ(GetText(GetObject(selection, "Parent"), "Name"), "Sheet1");
}

TEST_P(RangeContract, TheFirstAndTheLastCellOfTheSmallSheetAreThere) {
  Let(Cells("A1"), "Value", 1.0);
  Let(Cells("IV65536"), "Value", 2.0);
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant(1.0));
  EXPECT_EQ(Get(Cells("IV65536"), "Value"), Variant(2.0));
}

}  // namespace
}  // namespace rangewerks::tests
