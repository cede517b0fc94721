// Macro modules of LibreOffice's workbooks: what callers see of them, and what of them files keep.
#include <gmock/gmock.h>

#include <com/sun/star/script/XLibraryContainer.hpp>

#include "hosts/libreoffice/macro_library.h"
#include "hosts/libreoffice_documents.h"
#include "hosts/libreoffice_under_test.h"
#include "hosts/temporary_folder.h"

namespace rangewerks::tests {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

constexpr std::int32_t kRefused = 1004;
constexpr std::int32_t kNoSuchElement = 9;
constexpr std::int32_t kStandardModule = 1;

constexpr const char* kBrowseModule = "OstrelBrowseModule";
constexpr const char* kBrowseCode =
    "\rSub BrowseRecords()\r"
    "Dim obj As Object\r"
    "  Set obj = CreateObject(\"Interface.Browse\")\r"
    "  obj.BrowseRanges ActiveCell, "
    "Workbooks(Workbooks.Application.ActiveWorkbook.Name).Sheets(ActiveSheet.Name)\r"
    "  Set obj = Nothing\r"
    "End sub";
constexpr const char* kOpenCode =
    "\rPrivate Sub Workbook_Open()\r"
    "  If Application.CommandBars(\"Cell\").Controls(1).Caption <> \"Brow&se Records\" Then\r"
    "  End if\r"
    "End Sub";

class LibreOfficeMacros : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override { book_ = SharedOffice().NewWorkbook({"Ledger", "Data Sheet"}); }
  void TearDown() override {
    for (const Variant& book : Elements(GetObject(SharedOffice().Application(), "Workbooks"))) {
      SharedOffice().Close(book.AsObject());
    }
  }

  Object Components() { return GetObject(GetObject(book_, "VBProject"), "VBComponents"); }
  Object Component(const char* name) { return GetObject(Components(), "Item", {name}); }
  Object Code(const char* module) { return GetObject(Component(module), "CodeModule"); }
  Object AddModule(const char* name) {
    Object added = Call(Components(), "Add", {kStandardModule}).AsObject();
    Let(added, "Name", name);
    return added;
  }
  void Append(const char* module, const char* text) {
    const Object code = Code(module);
    Call(code, "InsertLines", {GetLong(code, "CountOfLines") + 1, text});
  }
  /// All lines, each with CR behind it.
  std::string Lines(const char* module) {
    const Object code = Code(module);
    std::string text;
    const std::int32_t count = GetLong(code, "CountOfLines");
    for (std::int32_t i = 1; i <= count; ++i) text += GetText(code, "Lines", {i, 1}) + "\r";
    return text;
  }
  std::vector<std::string> Modules() {
    std::vector<std::string> names;
    for (const Variant& each : Elements(Components())) {
      names.push_back(GetText(each.AsObject(), "Name"));
    }
    return names;
  }
  bool HasLibrary() { return !lo::ProjectLibraryIn(lo::LibrariesOf(BookOf(book_))).isEmpty(); }
  void Reopen() { ReopenAs(GetParam()); }
  void ReopenAs(const char* extension) {
    const std::string path = folder_.File(std::to_string(++saved_) + extension);
    SharedOffice().SaveCopyAs(book_, path);
    SharedOffice().Close(book_);
    book_ = SharedOffice().Open(path);
  }

  TemporaryFolder folder_;
  int saved_ = 0;
  Object book_;
};

const auto kNameOfFormat = [](const auto& each) { return std::string(each.param).substr(1); };
INSTANTIATE_TEST_SUITE_P(Formats, LibreOfficeMacros, testing::Values(".xlsm", ".xls", ".ods"),
                         kNameOfFormat);

TEST_P(LibreOfficeMacros, AFileKeepsTheLinesOfModulesHoweverOftenItIsSaved) {
  AddModule(kBrowseModule);
  Append(kBrowseModule, kBrowseCode);
  Append("ThisWorkbook", kOpenCode);
  for (int i = 0; i < 3; ++i) {
    Reopen();
    EXPECT_EQ(Lines(kBrowseModule), kBrowseCode + std::string("\r"));
    EXPECT_EQ(Lines("ThisWorkbook"), kOpenCode + std::string("\r"));
    EXPECT_EQ(GetLong(Component(kBrowseModule), "Type"), 1);
    EXPECT_EQ(GetLong(Component("ThisWorkbook"), "Type"), 100);
  }
}

TEST_P(LibreOfficeMacros, SavingLeavesTheOpenModulesAsTheyAre) {
  AddModule(kBrowseModule);
  Append(kBrowseModule, "A\r\r");
  SharedOffice().SaveCopyAs(book_, folder_.File(std::string("copy") + GetParam()));
  EXPECT_EQ(Lines(kBrowseModule), "A\r\r\r");
}

TEST_P(LibreOfficeMacros, AFileKeepsBlankLinesAtBothEndsOfAModule) {
  AddModule(kBrowseModule);
  Append(kBrowseModule, "\r\rSub A()\rEnd Sub\r\r");
  Reopen();
  EXPECT_EQ(Lines(kBrowseModule), "\r\rSub A()\rEnd Sub\r\r\r");
}

TEST_P(LibreOfficeMacros, AModuleWithoutLinesSpoilsNoOther) {
  AddModule("Empty");
  AddModule(kBrowseModule);
  Append(kBrowseModule, kBrowseCode);
  Reopen();
  const bool isOds = std::string_view(GetParam()) == ".ods";
  EXPECT_EQ(Lines("Empty"), isOds ? "" : "\r") << "files of Excel's know no module without lines";
  EXPECT_EQ(Lines(kBrowseModule), kBrowseCode + std::string("\r"));
}

TEST_P(LibreOfficeMacros, AFileKeepsTheCodeOfASheet) {
  Append("Sheet2", "\rPrivate Sub Worksheet_Activate()\rEnd Sub");
  Reopen();
  EXPECT_EQ(Lines("Sheet2"), "\rPrivate Sub Worksheet_Activate()\rEnd Sub\r");
  EXPECT_EQ(GetLong(Component("Sheet2"), "Type"), 100);
}

TEST_P(LibreOfficeMacros, FilesOfExcelsKeepOnlyWesternLettersOfCode) {
  AddModule(kBrowseModule);
  Append(kBrowseModule, "' \xC3\x84\xC3\xA9\xC3\xB1");
  Append(kBrowseModule, "' \xE2\x82\xAC \xCE\xA9");
  Reopen();
  const bool isOds = std::string_view(GetParam()) == ".ods";
  EXPECT_EQ(GetText(Code(kBrowseModule), "Lines", {1, 1}), "' \xC3\x84\xC3\xA9\xC3\xB1");
  EXPECT_EQ(GetText(Code(kBrowseModule), "Lines", {2, 1}) == "' \xE2\x82\xAC \xCE\xA9", isOds);
}

TEST_P(LibreOfficeMacros, ARemovedModuleIsGoneFromTheFile) {
  AddModule(kBrowseModule);
  AddModule("Other");
  Reopen();
  Call(Components(), "Remove", {Component(kBrowseModule)});
  Reopen();
  EXPECT_EQ(ErrorNumberOf([&] { Component(kBrowseModule); }), kNoSuchElement);
  EXPECT_EQ(GetText(Component("Other"), "Name"), "Other");
}

TEST_P(LibreOfficeMacros, ADocumentWhoseOnlyModuleWasRemovedHasNoProjectAnyMore) {
  AddModule(kBrowseModule);
  Append(kBrowseModule, kBrowseCode);
  Reopen();
  EXPECT_TRUE(HasLibrary());
  Call(Components(), "Remove", {Component(kBrowseModule)});
  EXPECT_FALSE(HasLibrary());
  Reopen();
  EXPECT_FALSE(HasLibrary());
}

TEST_P(LibreOfficeMacros, ModulesOfAnOdsFileGoIntoFilesOfExcelsToo) {
  AddModule(kBrowseModule);
  Append(kBrowseModule, kBrowseCode);
  ReopenAs(".ods");
  Reopen();
  EXPECT_EQ(Lines(kBrowseModule), kBrowseCode + std::string("\r"));
}

class LibreOfficeMacrosInMemory : public LibreOfficeMacros {};
INSTANTIATE_TEST_SUITE_P(One, LibreOfficeMacrosInMemory, testing::Values(".xlsx"), kNameOfFormat);

TEST_P(LibreOfficeMacrosInMemory, AnXlsxFileKeepsNoModules) {
  AddModule(kBrowseModule);
  Append("ThisWorkbook", kOpenCode);
  Reopen();
  EXPECT_FALSE(HasLibrary());
  EXPECT_THAT(Modules(), ElementsAre("ThisWorkbook", "Sheet1", "Sheet2"));
  EXPECT_EQ(Lines("ThisWorkbook"), "");
}

TEST_P(LibreOfficeMacrosInMemory, LookingAtModulesMakesNone) {
  EXPECT_THAT(Modules(), ElementsAre("ThisWorkbook", "Sheet1", "Sheet2"));
  EXPECT_EQ(Lines("ThisWorkbook"), "");
  EXPECT_FALSE(HasLibrary());
}

TEST_P(LibreOfficeMacrosInMemory, LinesThatAreInsertedAndDeletedAgainLeaveNoProject) {
  Append("ThisWorkbook", kOpenCode);
  EXPECT_TRUE(HasLibrary());
  Call(Code("ThisWorkbook"), "DeleteLines", {1, 5});
  EXPECT_FALSE(HasLibrary());
}

TEST_P(LibreOfficeMacrosInMemory, ModulesOfTheWorkbookAndItsSheetsStay) {
  for (const char* name : {"ThisWorkbook", "Sheet1"}) {
    EXPECT_EQ(ErrorNumberOf([&] { Call(Components(), "Remove", {Component(name)}); }), kRefused);
    EXPECT_EQ(ErrorNumberOf([&] { Let(Component(name), "Name", "Other"); }), kRefused);
  }
}

TEST_P(LibreOfficeMacrosInMemory, AModuleIsCalledWhatNoOtherIs) {
  EXPECT_EQ(GetText(Call(Components(), "Add", {1}).AsObject(), "Name"), "Module1");
  EXPECT_EQ(GetText(Call(Components(), "Add", {1}).AsObject(), "Name"), "Module2");
  EXPECT_EQ(GetText(Call(Components(), "Add", {2}).AsObject(), "Name"), "Class1");
  EXPECT_EQ(ErrorNumberOf([&] { Call(Components(), "Add", {100}); }), kRefused);
  for (const char* name : {"", "a b", "2nd", "MODULE2", "thisworkbook"}) {
    EXPECT_EQ(ErrorNumberOf([&] { Let(Component("Module1"), "Name", name); }), kRefused) << name;
  }
  Let(Component("Module1"), "Name", "MODULE1");
  EXPECT_THAT(Modules(), UnorderedElementsAre("ThisWorkbook", "Sheet1", "Sheet2", "Class1",
                                              "MODULE1", "Module2"));
}

TEST_P(LibreOfficeMacrosInMemory, ARenamedModuleKeepsItsLines) {
  const Object module = Call(Components(), "Add", {1}).AsObject();
  Append("Module1", "A\rB");
  Let(module, "Name", kBrowseModule);
  EXPECT_EQ(Lines(kBrowseModule), "A\rB\r");
  EXPECT_EQ(GetText(module, "Name"), kBrowseModule);
}

TEST_P(LibreOfficeMacrosInMemory, ARemovedModuleIsRefusedEverything) {
  const Object module = AddModule(kBrowseModule);
  const Object code = GetObject(module, "CodeModule");
  Call(Components(), "Remove", {module});
  EXPECT_EQ(ErrorNumberOf([&] { Get(module, "Name"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Get(code, "CountOfLines"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(code, "InsertLines", {1, "A"}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(Components(), "Remove", {module}); }), kRefused);
}

TEST_P(LibreOfficeMacrosInMemory, MacrosOfTheOfficesOwnAreLeftAlone) {
  const auto libraries = lo::LibrariesOf(BookOf(book_));
  const auto own = libraries->hasByName(lo::ToUno("Standard"))
                       ? lo::LoadedLibrary(libraries, lo::ToUno("Standard"))
                       : libraries->createLibrary(lo::ToUno("Standard"));
  own->insertByName(lo::ToUno("Own"), css::uno::Any(lo::ToUno("Sub Own\nEnd Sub")));
  EXPECT_EQ(ErrorNumberOf([&] { Component("Own"); }), kNoSuchElement);
  const Object added = AddModule(kBrowseModule);
  Call(Components(), "Remove", {added});
  EXPECT_TRUE(own->hasByName(lo::ToUno("Own")));
}

TEST_P(LibreOfficeMacrosInMemory, AWorkbookOpenedForReadingKeepsItsModules) {
  AddModule(kBrowseModule);
  Append(kBrowseModule, "A");
  const std::string path = folder_.File("book.xlsm");
  SharedOffice().SaveCopyAs(book_, path);
  book_ = SharedOffice().Open(path, {.readOnly = true});
  EXPECT_EQ(ErrorNumberOf([&] { Append(kBrowseModule, "B"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(Components(), "Add", {1}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(Components(), "Remove", {Component(kBrowseModule)}); }),
            kRefused);
  EXPECT_EQ(Lines(kBrowseModule), "A\r");
}

}  // namespace
}  // namespace rangewerks::tests
