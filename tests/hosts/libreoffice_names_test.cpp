// Names where LibreOffice has rules and ways of its own.
#include <gtest/gtest.h>

#include "hosts/libreoffice_documents.h"
#include "hosts/libreoffice_under_test.h"

namespace rangewerks::tests {
namespace {

using automation::Error;

class LibreOfficeNames : public testing::Test {
 protected:
  LibreOfficeNames()
      : book_(SharedOffice().NewWorkbook({"Sheet1", "Data Sheet"})),
        sheet_(GetObject(book_, "ActiveSheet")),
        names_(GetObject(book_, "Names")) {}
  ~LibreOfficeNames() override { SharedOffice().Close(book_); }

  Object Name(const char* text) { return GetObject(book_, "Names", {text}); }
  std::string Refusal(const std::string& name) {
    try {
      AddName(names_, name, "=Sheet1!$A$1");
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), 1004);
      return error.Description();
    }
    return {};
  }

  Object book_;
  Object sheet_;
  Object names_;
};

TEST_F(LibreOfficeNames, ANameThatOnlyThisOfficeRefusesIsToldSo) {
  for (const char* name : {"a.b", "\\a"}) {
    EXPECT_EQ(Refusal(name), "\"" + std::string(name) +
                                 "\" can't be a name in LibreOffice: a name there consists of "
                                 "letters, digits and \"_\", doesn't begin with a digit and "
                                 "doesn't look like a cell's address");
  }
  EXPECT_EQ(GetLong(names_, "Count"), 0);
}

TEST_F(LibreOfficeNames, ARenameIsCheckedAlthoughTheOfficeTakesEverything) {
  AddName(names_, "First", "=Sheet1!$A$1");
  AddName(names_, "Second", "=Sheet1!$A$2");
  for (const char* wrong : {"a b", "second", "a.b", "A1"}) {
    EXPECT_EQ(ErrorNumberOf([&] { Let(Name("First"), "Name", wrong); }), 1004) << wrong;
  }
  EXPECT_EQ(GetText(Name("First"), "RefersTo"), "=Sheet1!$A$1");
  EXPECT_EQ(GetText(Name("Second"), "RefersTo"), "=Sheet1!$A$2");
  Let(Name("First"), "Name", "FIRST");
  EXPECT_EQ(GetText(Name("first"), "Name"), "FIRST");
}

TEST_F(LibreOfficeNames, ANameWithoutWorkingCellsRefersToNoRange) {
  AddName(names_, "Number", "=12.5");
  AddName(names_, "Formula", "=SUM(Sheet1!$A$1:$A$3)");
  AddName(names_, "Text", "plain");
  AddName(names_, "Dead", "=#REF!");
  for (const char* name : {"Number", "Formula", "Text", "Dead"}) {
    EXPECT_EQ(ErrorNumberOf([&] { Get(Name(name), "RefersToRange"); }), 1004) << name;
  }
  EXPECT_EQ(GetText(Name("Number"), "RefersTo"), "=12.5");
  EXPECT_EQ(GetText(Name("Formula"), "RefersTo"), "=SUM(Sheet1!$A$1:$A$3)");
  EXPECT_EQ(GetText(Name("Text"), "RefersTo"), "=\"plain\"");
}

TEST_F(LibreOfficeNames, DeletingASheetKillsTheNamesOfItsCells) {
  AddName(names_, "Gone", "='Data Sheet'!$A$1");
  const Object dataSheet = GetObject(book_, "Sheets", {"Data Sheet"});
  Call(dataSheet, "Delete");
  EXPECT_EQ(ErrorNumberOf([&] { Get(Name("Gone"), "RefersToRange"); }), 1004);
  EXPECT_EQ(ErrorNumberOf([&] { Get(dataSheet, "Name"); }), 1004);
}

TEST_F(LibreOfficeNames, CellsFollowTheirSheetThroughARename) {
  AddName(names_, "Code", "='Data Sheet'!$A$1:$A$3");
  const Object dataSheet = GetObject(book_, "Sheets", {"Data Sheet"});
  Let(dataSheet, "Name", "It's 2024");
  const Object cells = GetObject(Name("Code"), "RefersToRange");
  EXPECT_EQ(GetText(cells, "Address"), "$A$1:$A$3");
  EXPECT_EQ(GetObject(cells, "Parent"), dataSheet);
  EXPECT_EQ(GetText(Name("Code"), "RefersTo"), "='It''s 2024'!$A$1:$A$3");
}

TEST_F(LibreOfficeNames, AThousandNamesAreWalkedInOrderWhileTheyAreDeleted) {
  constexpr std::size_t kMany = 1000;
  for (std::size_t i = 0; i < kMany; ++i) {
    AddName(names_, "Name_" + std::to_string(kMany + i), "=Sheet1!$A$1");
  }
  std::size_t seen = 0;
  const auto walk = names_.Enumerate();
  for (Variant name; walk->Next(name); ++seen) {
    EXPECT_EQ(GetText(name.AsObject(), "Name"), "Name_" + std::to_string(kMany + seen));
    Call(name.AsObject(), "Delete");
  }
  EXPECT_EQ(seen, kMany);
  EXPECT_EQ(GetLong(names_, "Count"), 0);
}

}  // namespace
}  // namespace rangewerks::tests
