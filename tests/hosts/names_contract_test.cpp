// Defined names: adding, finding, walking, renaming, deleting.
#include <gmock/gmock.h>

#include "hosts/contract.h"

namespace rangewerks::tests {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class NamesContract : public HostContract {
 protected:
  std::vector<std::string> AllNames() {
    std::vector<std::string> texts;
    for (const Variant& name : Elements(Names())) texts.push_back(GetText(name.AsObject(), "Name"));
    return texts;
  }
  /// "Sheet1 $A$1:$A$3" of a name.
  std::string PlaceOf(const char* name) {
    const Object cells = GetObject(GetObject(book_, "Names", {name}), "RefersToRange");
    return GetText(GetObject(cells, "Parent"), "Name") + " " + GetText(cells, "Address");
  }
};
CONTRACT_FOR_ALL_HOSTS(NamesContract);

// --- Names.Add -----------------------------------------------------------------------------------

TEST_P(NamesContract, AddCreatesANameFromReferenceText) {
  AddName(Names(), "Sheet1__Code", "=Sheet1!$C$3:$C$10");
  EXPECT_EQ(PlaceOf("Sheet1__Code"), "Sheet1 $C$3:$C$10");
}

TEST_P(NamesContract, AddTakesReferenceTextWithAQuotedSheetName) {
  AddName(Names(), "Quoted", "='Data Sheet'!$B$2");
  AddName(Names(), "Doubled", "='O''Brien'!$B$2:$C$4");
  EXPECT_EQ(PlaceOf("Quoted"), "Data Sheet $B$2");
  EXPECT_EQ(PlaceOf("Doubled"), "O'Brien $B$2:$C$4");
}

TEST_P(NamesContract, AddTakesARange) {
  AddName(Names(), "Code", Cells(dataSheet_, "B2:B4"));
  EXPECT_EQ(PlaceOf("Code"), "Data Sheet $B$2:$B$4");
}

TEST_P(NamesContract, AddMovesANameThatExists) {
  AddName(Names(), "Code", "=Sheet1!$A$1");
  AddName(Names(), "CODE", "='Data Sheet'!$A$7");
  EXPECT_EQ(GetLong(Names(), "Count"), 1);
  EXPECT_EQ(PlaceOf("Code"), "Data Sheet $A$7");
}

TEST_P(NamesContract, ATrailingBlankIsNotPartOfANameThatIsAdded) {
  AddName(Names(), "Code ", "=Sheet1!$A$1");
  EXPECT_THAT(AllNames(), ElementsAre("Code"));
}

TEST_P(NamesContract, AddRefusesWhatCanNotBeAName) {
  for (const char* name :
       {"", "a b", "a-b", "a+b", "1a", "a/b", "A1", "NEW2", "XFD1048576", "R1C1", "a&b", "(a)"}) {
    EXPECT_TRUE(Fails([&] { AddName(Names(), name, "=Sheet1!$A$1"); })) << name;
  }
  EXPECT_EQ(GetLong(Names(), "Count"), 0);
}

TEST_P(NamesContract, AddTakesLettersDigitsAndUnderscoresInAnyPlace) {
  for (const char* name : {"_2024_Q1__Code", "x", "nominal_code", "Ab9_", "ABCD1"}) {
    AddName(Names(), name, "=Sheet1!$A$1");
    EXPECT_EQ(PlaceOf(name), "Sheet1 $A$1") << name;
  }
}

// --- finding -------------------------------------------------------------------------------------

TEST_P(NamesContract, ANameIsFoundByItsTextInAnyCase) {
  AddName(Names(), "Sheet1__Code", "=Sheet1!$A$1");
  EXPECT_EQ(GetText(GetObject(book_, "Names", {"sheet1__CODE"}), "Name"), "Sheet1__Code");
  EXPECT_EQ(GetText(GetObject(Names(), "Item", {"SHEET1__code"}), "Name"), "Sheet1__Code");
}

TEST_P(NamesContract, ANameIsFoundByItsPosition) {
  AddName(Names(), "Code", "=Sheet1!$A$1");
  EXPECT_EQ(GetText(GetObject(Names(), "Item", {1}), "Name"), "Code");
}

TEST_P(NamesContract, AMissingNameFails) {
  AddName(Names(), "Code", "=Sheet1!$A$1");
  EXPECT_TRUE(Fails([&] { Get(book_, "Names", {"Amount"}); }));
  EXPECT_TRUE(Fails([&] { Get(Names(), "Item", {"Amount"}); }));
  EXPECT_TRUE(Fails([&] { Get(Names(), "Item", {0}); }));
  EXPECT_TRUE(Fails([&] { Get(Names(), "Item", {2}); }));
}

TEST_P(NamesContract, WorksheetRangeFindsTheCellsOfAName) {
  AddName(Names(), "Code", "=Sheet1!$C$3:$C$10");
  EXPECT_EQ(GetText(Cells("code"), "Address"), "$C$3:$C$10");
}

TEST_P(NamesContract, WorksheetRangeIgnoresOneTrailingBlank) {
  AddName(Names(), "Code", "=Sheet1!$C$3");
  EXPECT_EQ(GetText(Cells("Code "), "Address"), "$C$3");
}

TEST_P(NamesContract, WorksheetRangeFailsForANameOfCellsOnAnotherSheet) {
  AddName(Names(), "Code", "='Data Sheet'!$C$3");
  EXPECT_TRUE(Fails([&] { Cells(sheet_, "Code"); }));
  EXPECT_EQ(GetText(Cells(dataSheet_, "Code"), "Address"), "$C$3");
}

TEST_P(NamesContract, WorksheetRangeFailsForANameThatIsNotThere) {
  EXPECT_TRUE(Fails([&] { Cells("Code"); }));
}

TEST_P(NamesContract, WorksheetRangeFailsForAConstant) {
  host_->DefineConstant(book_, "Rate", "=12.5");
  EXPECT_TRUE(Fails([&] { Cells("Rate"); }));
}

// --- walking -------------------------------------------------------------------------------------

TEST_P(NamesContract, AWalkVisitsEveryNameOnceConstantsToo) {
  AddName(Names(), "Code", "=Sheet1!$A$1");
  AddName(Names(), "Amount", "='Data Sheet'!$A$1:$A$9");
  host_->DefineConstant(book_, "Rate", "=12.5");
  EXPECT_THAT(AllNames(), UnorderedElementsAre("Amount", "Code", "Rate"));
}

TEST_P(NamesContract, AWalkOverNoNamesEndsAtOnce) { EXPECT_TRUE(Elements(Names()).empty()); }

TEST_P(NamesContract, DeletingTheNameJustVisitedDoesNotDisturbTheWalk) {
  for (const char* name : {"Alpha", "Beta", "Gamma", "Delta"}) {
    AddName(Names(), name, "=Sheet1!$A$1");
  }
  std::vector<std::string> visited;
  const auto walk = GetObject(Application(), "Names").Enumerate();
  for (Variant name; walk->Next(name);) {
    visited.push_back(GetText(name.AsObject(), "Name"));
    Call(name.AsObject(), "Delete");
  }
  EXPECT_THAT(visited, UnorderedElementsAre("Alpha", "Beta", "Gamma", "Delta"));
  EXPECT_EQ(GetLong(Names(), "Count"), 0);
}

TEST_P(NamesContract, AddingANameDuringAWalkDoesNotDisturbIt) {
  for (const char* name : {"Alpha", "Beta"}) AddName(Names(), name, "=Sheet1!$A$1");
  std::vector<std::string> visited;
  const auto walk = Names().Enumerate();
  for (Variant name; walk->Next(name) && visited.size() < 10;) {
    visited.push_back(GetText(name.AsObject(), "Name"));
    AddName(Names(), "Aaa", "=Sheet1!$A$2");
  }
  EXPECT_THAT(visited, testing::IsSupersetOf({"Alpha", "Beta"}));
}

// --- one name ------------------------------------------------------------------------------------

TEST_P(NamesContract, ALetOfTheNameRenamesInPlace) {
  const Object name = AddName(Names(), "Sheet1__Code", "=Sheet1!$C$3:$C$10");
  Let(name, "Name", "Next__Code");
  EXPECT_EQ(GetText(name, "Name"), "Next__Code");
  EXPECT_EQ(PlaceOf("Next__Code"), "Sheet1 $C$3:$C$10");
  EXPECT_TRUE(Fails([&] { Get(book_, "Names", {"Sheet1__Code"}); }));
  EXPECT_EQ(GetLong(Names(), "Count"), 1);
}

TEST_P(NamesContract, ARenameToWhatCanNotBeANameFailsAndLeavesTheName) {
  const Object name = AddName(Names(), "Code", "=Sheet1!$C$3");
  EXPECT_TRUE(Fails([&] { Let(name, "Name", "a b"); }));
  EXPECT_EQ(PlaceOf("Code"), "Sheet1 $C$3");
}

TEST_P(NamesContract, ARenameToATakenNameFailsAndLeavesBoth) {
  const Object name = AddName(Names(), "Code", "=Sheet1!$C$3");
  AddName(Names(), "Amount", "=Sheet1!$D$3");
  EXPECT_TRUE(Fails([&] { Let(name, "Name", "AMOUNT"); }));
  EXPECT_EQ(PlaceOf("Code"), "Sheet1 $C$3");
  EXPECT_EQ(PlaceOf("Amount"), "Sheet1 $D$3");
}

TEST_P(NamesContract, RefersToRangeFailsForAConstant) {
  host_->DefineConstant(book_, "Rate", "=12.5");
  EXPECT_TRUE(Fails([&] { Get(GetObject(book_, "Names", {"Rate"}), "RefersToRange"); }));
}

TEST_P(NamesContract, RefersToRangeFailsForAFormula) {
  host_->DefineConstant(book_, "Doubled", "=Sheet1!$A$1*2");
  EXPECT_TRUE(Fails([&] { Get(GetObject(book_, "Names", {"Doubled"}), "RefersToRange"); }));
}

TEST_P(NamesContract, DeleteRemovesTheNameAndLeavesTheCells) {
  Let(Cells("C3"), "Value", "kept");
  const Object name = AddName(Names(), "Code", "=Sheet1!$C$3");
  Call(name, "Delete");
  EXPECT_TRUE(Fails([&] { Get(book_, "Names", {"Code"}); }));
  EXPECT_EQ(Get(Cells("C3"), "Value"), Variant("kept"));
}

TEST_P(NamesContract, TheDefaultTextOfANameIsItsReference) {
  EXPECT_EQ(GetText(AddName(Names(), "Code", "=Sheet1!$C$3:$C$10"), "_Default"),
            "=Sheet1!$C$3:$C$10");
  EXPECT_EQ(GetText(AddName(Names(), "Quoted", "='Data Sheet'!$B$2"), "_Default"),
            "='Data Sheet'!$B$2");
  EXPECT_EQ(GetText(AddName(Names(), "Doubled", "='O''Brien'!$B$2"), "_Default"),
            "='O''Brien'!$B$2");
}

// --- names of one sheet --------------------------------------------------------------------------

TEST_P(NamesContract, ANameOfOneSheetCarriesTheSheetInItsText) {
  AddName(Names(), "Sheet1!Code", "=Sheet1!$A$1");
  AddName(Names(), "'Data Sheet'!Code", "='Data Sheet'!$A$2");
  EXPECT_THAT(AllNames(), UnorderedElementsAre("Sheet1!Code", "'Data Sheet'!Code"));
}

TEST_P(NamesContract, WorksheetRangeFindsANameOfThisSheetWithoutTheSheet) {
  AddName(Names(), "Sheet1!Code", "=Sheet1!$A$1");
  EXPECT_EQ(GetText(Cells(sheet_, "Code"), "Address"), "$A$1");
  EXPECT_EQ(GetText(Cells(sheet_, "Sheet1!Code"), "Address"), "$A$1");
  EXPECT_TRUE(Fails([&] { Cells(dataSheet_, "Code"); }));
}

TEST_P(NamesContract, ANameOfTheSheetComesBeforeOneOfTheWorkbook) {
  AddName(Names(), "Code", "=Sheet1!$A$1");
  AddName(Names(), "Sheet1!Code", "=Sheet1!$B$1");
  EXPECT_EQ(GetText(Cells("Code"), "Address"), "$B$1");
}

}  // namespace
}  // namespace rangewerks::tests
