#include "browse/clsAddBrowse.h"

#include <gmock/gmock.h>

#include "browse/browse_fixture.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using testing::ElementsAre;

/// The whole procedure, as it stands in the workbook.
const std::string kOldMacro =
    "Private Sub Workbook_Open()\r"
    "  If Application.CommandBars(\"Cell\").Controls(1).Caption <> \"Brow&se Records\" Then\r"
    "      Application.ShortcutMenus(xlWorksheetCell).MenuItems.Add Caption:=\"Brow&se Records\", "
    "OnAction:=\"BrowseRecords\", Before:=\"Cut\"\r"
    "  End if\r"
    "End Sub";
const std::string kNewMacro =
    "Private Sub Workbook_Open()\r"
    "  If Application.CommandBars(\"Cell\").Controls(1).Caption <> \"&Browse Records\" Then\r"
    "      Application.ShortcutMenus(xlWorksheetCell).MenuItems.Add Caption:=\"&Browse Records\", "
    "OnAction:=\"BrowseRecords\", Before:=\"Cut\"\r"
    "  End if\r"
    "End Sub";

class AddBrowse : public BrowseFixture {
 protected:
  AddBrowse() { browse.set_WorkBook(Book()); }
  std::string Macro() const { return TextOf("ThisWorkbook"); }

  clsAddBrowse browse;
};

// --- the properties ------------------------------------------------------------------------------

TEST_F(AddBrowse, StartsWithItsNamesAndTheMacroMethod) {
  clsAddBrowse fresh;
  EXPECT_EQ(fresh.get_sCaption(), "Brow&se Records");
  EXPECT_EQ(fresh.get_sCommand(), "BrowseRecords");
  EXPECT_EQ(fresh.get_sComponent(), "OstrelBrowseModule");
  EXPECT_FALSE(fresh.get_bNewMethod());
  EXPECT_FALSE(fresh.get_UseNewBrowseShortcutName());
  EXPECT_EQ(fresh.get_BrowseMenuText(), "Brow&se Records");
  EXPECT_FALSE(fresh.get_WorkBook());
}

TEST_F(AddBrowse, ChoosingTheTextOverwritesTheCaption) {
  browse.let_sCaption("Mine");
  EXPECT_EQ(browse.get_sCaption(), "Mine");
  browse.let_UseNewBrowseShortcutName(true);
  EXPECT_EQ(browse.get_sCaption(), "&Browse Records");
  EXPECT_EQ(browse.get_BrowseMenuText(), "&Browse Records");
}

// --- by macro ------------------------------------------------------------------------------------

TEST_F(AddBrowse, WritesTheMacroByteForByte) {
  browse.AddBrowseToWorkbook();
  EXPECT_EQ(Macro(), "\r" + kOldMacro);
}

TEST_F(AddBrowse, TheMacroHasTheOtherMenuTextOnceItIsChosen) {
  browse.let_UseNewBrowseShortcutName(true);
  browse.AddBrowseToWorkbook();
  EXPECT_EQ(Macro(), "\r" + kNewMacro);
}

TEST_F(AddBrowse, CaptionAndCommandOfTheCallerDoNotReachTheMacro) {
  browse.let_sCaption("Mine\" & Kill(\"*");
  browse.let_sCommand("Other");
  browse.AddBrowseToWorkbook();
  EXPECT_EQ(Macro(), "\r" + kOldMacro);
}

TEST_F(AddBrowse, AddingDeletesTheOldProcedureAndInsertsTheNewOneAtTheEnd) {
  const std::string inserted = [] {
    std::string text;
    for (const char c : "\r" + kOldMacro)
      text += c == '"' ? std::string("\"\"") : std::string(1, c);
    return text;
  }();
  EXPECT_THAT(CallsOf([&] { browse.AddBrowseToWorkbook(); }),
              ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                          "VBComponents.Item get \"ThisWorkbook\"", "VBComponent.CodeModule get",
                          "CodeModule.ProcStartLine get \"Workbook_Open\", 0",
                          "CodeModule.ProcCountLines get \"Workbook_Open\", 0",
                          "CodeModule.DeleteLines call 0, 0", "Workbook.VBProject get",
                          "VBProject.VBComponents get", "VBComponents.Item get \"ThisWorkbook\"",
                          "VBComponent.CodeModule get", "CodeModule.CountOfLines get",
                          "CodeModule.InsertLines call 1, \"" + inserted + "\""));
}

TEST_F(AddBrowse, AWorkbookOpenOfTheWorkbooksOwnIsReplaced) {
  PutCode("ThisWorkbook",
          "Private Sub Workbook_Open()\r  MsgBox \"Welcome\"\rEnd Sub\r"
          "Private Sub Workbook_Close()\rEnd Sub");
  browse.AddBrowseToWorkbook();
  EXPECT_EQ(Macro(), "Private Sub Workbook_Close()\rEnd Sub\r\r" + kOldMacro);
}

TEST_F(AddBrowse, DeletingLeavesTheEmptyFrameAndAddingWritesTheWholeAnew) {
  browse.AddBrowseToWorkbook();
  EXPECT_EQ(CallsOf([&] { browse.DeleteBrowseFromWorkbook(); }).back(),
            "CodeModule.DeleteLines call 3, 3");
  EXPECT_EQ(Macro(), "\rPrivate Sub Workbook_Open()\rEnd Sub");
  browse.AddBrowseToWorkbook();
  EXPECT_EQ(Macro(), "\r" + kOldMacro);
}

TEST_F(AddBrowse, DeletingUnderTheOtherMenuTextDeletesNothing) {
  browse.AddBrowseToWorkbook();
  browse.let_UseNewBrowseShortcutName(true);
  browse.DeleteBrowseFromWorkbook();
  EXPECT_EQ(Macro(), "\r" + kOldMacro);
}

TEST_F(AddBrowse, ByMacroAWorkbookHasABrowseWhenItHasTheModuleBeItEmpty) {
  EXPECT_FALSE(browse.IsBrowse());
  AddModule("OstrelBrowseModule");
  EXPECT_THAT(CallsOf([&] { EXPECT_TRUE(browse.IsBrowse()); }),
              ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                          "VBComponents.Item get \"OstrelBrowseModule\"",
                          "VBComponent.CodeModule get", "CodeModule.CountOfLines get"));
  browse.let_sComponent("Other");
  EXPECT_FALSE(browse.IsBrowse());
}

TEST_F(AddBrowse, WithoutAccessToTheProjectThereIsNoBrowseByMacro) {
  AddModule("OstrelBrowseModule");
  host.TrustVBProject(false);
  EXPECT_FALSE(browse.IsBrowse());
}

TEST_F(AddBrowse, WithoutAccessToTheProjectTheMacroCanNotBeAdded) {
  host.TrustVBProject(false);
  const Error error = ErrorOf([&] { browse.AddBrowseToWorkbook(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "Programmatic access to Visual Basic Project is not trusted");
  EXPECT_THAT(error.Source(),
              MatchesRegex("(Line No\\.: [0-9]+ ){2}Workbook\r\n"
                           "AddWorkbookOpenBrowse of Clas Module clsAddBrowse Line#:[0-9]+\r\n"
                           "AddBrowseToWorkbook of Clas Module clsAddBrowse Line#:[0-9]+"));
}

// --- by document property ------------------------------------------------------------------------

TEST_F(AddBrowse, TheNewMethodMarksTheWorkbookWithoutCode) {
  browse.let_bNewMethod(true);
  EXPECT_THAT(CallsOf([&] { browse.AddBrowseToWorkbook(); }),
              ElementsAre("Workbook.CustomDocumentProperties get",
                          "DocumentProperties.Add call Name:=\"OstrelBrowseModule\", "
                          "LinkToContent:=False, Type:=2, Value:=True",
                          "DocumentProperties.Item get \"OstrelBrowseModule\"",
                          "DocumentProperty._Default let True"));
  EXPECT_EQ(PropertyOf("OstrelBrowseModule"), Variant(true));
  EXPECT_EQ(Macro(), "");
  EXPECT_TRUE(browse.IsBrowse());
}

TEST_F(AddBrowse, AddingTwiceLeavesOnePropertySetToTrue) {
  browse.let_bNewMethod(true);
  browse.AddBrowseToWorkbook();
  browse.AddBrowseToWorkbook();
  EXPECT_EQ(GetLong(Properties(), "Count"), 1);
  EXPECT_EQ(PropertyOf("OstrelBrowseModule"), Variant(true));
}

TEST_F(AddBrowse, DeletingWithoutThePropertyDoesNothingAndReportsNothing) {
  browse.let_bNewMethod(true);
  browse.DeleteBrowseFromWorkbook();
  EXPECT_EQ(GetLong(Properties(), "Count"), 0);
}

TEST_F(AddBrowse, DeletingMakesThePropertyFalseAndKeepsIt) {
  browse.let_bNewMethod(true);
  browse.AddBrowseToWorkbook();
  browse.DeleteBrowseFromWorkbook();
  EXPECT_EQ(PropertyOf("OstrelBrowseModule"), Variant(false));
}

TEST_F(AddBrowse, APropertyThatIsFalseIsNoBrowse) {
  browse.let_bNewMethod(true);
  AddProperty("OstrelBrowseModule", false);
  EXPECT_FALSE(browse.IsBrowse());
}

TEST_F(AddBrowse, TheTwoMethodsLookAtDifferentThings) {
  AddProperty("OstrelBrowseModule", true);
  EXPECT_FALSE(browse.IsBrowse());
  browse.let_bNewMethod(true);
  EXPECT_TRUE(browse.IsBrowse());
  EXPECT_TRUE(browse.get_bNewMethod());
}

TEST_F(AddBrowse, APropertyThatCanNotBeAddedFails) {
  browse.let_bNewMethod(true);
  host.Calls().FailMember("DocumentProperties.Add", 1004, "The workbook is protected");
  const Error error = ErrorOf([&] { browse.AddBrowseToWorkbook(); });
  EXPECT_EQ(error.Number(), 9);
  EXPECT_EQ(error.Description(),
            "Workbook \"Ledger\" has no document property \"OstrelBrowseModule\"");
  EXPECT_THAT(error.Source(),
              MatchesRegex("(Line No\\.: [0-9]+ ){2}Workbook\r\n"
                           "SetDocumentPropertyOn of Clas Module clsAddBrowse Line#:[0-9]+\r\n"
                           "AddBrowseToWorkbook of Clas Module clsAddBrowse Line#:[0-9]+"));
}

// --- the shortcut --------------------------------------------------------------------------------

TEST_F(AddBrowse, TheShortcutCarriesCaptionAndComponent) {
  browse.let_UseNewBrowseShortcutName(true);
  browse.AddBrowseShortcut();
  EXPECT_EQ(CaptionsOf(2).front(), "&Browse Records");
  EXPECT_EQ(GetText(EntryAt(2, 1), "Tag"), "OstrelBrowseModule");
  browse.DeleteBrowseShortcut();
  EXPECT_EQ(CaptionsOf(2).front(), "Cu&t");
}

TEST_F(AddBrowse, AnsweredByNameInAnyProgram) {
  const Object object(std::make_shared<clsAddBrowse>());
  EXPECT_EQ(object.TypeName(), "clsAddBrowse");
  object.Set(Member("WorkBook"), book);
  EXPECT_EQ(GetObject(object, "WorkBook"), book);
  Let(object, "sCaption", "Look");
  Let(object, "sCommand", "Run");
  Let(object, "sComponent", "Mine");
  Let(object, "bNewMethod", true);
  Call(object, "AddBrowseToWorkbook");
  EXPECT_EQ(PropertyOf("Mine"), Variant(true));
  EXPECT_EQ(Call(object, "IsBrowse"), Variant(true));
  Call(object, "AddBrowseShortcut");
  EXPECT_EQ(CaptionsOf(2).front(), "Look");
  Call(object, "DeleteBrowseShortcut");
  Call(object, "DeleteBrowseFromWorkbook");
  EXPECT_EQ(Call(object, "IsBrowse"), Variant(false));
  EXPECT_EQ(GetText(object, "sCaption"), "Look");
  EXPECT_EQ(GetText(object, "sCommand"), "Run");
  EXPECT_EQ(GetText(object, "sComponent"), "Mine");
  EXPECT_EQ(Get(object, "bNewMethod"), Variant(true));
  Let(object, "UseNewBrowseShortcutName", true);
  EXPECT_EQ(Get(object, "UseNewBrowseShortcutName"), Variant(true));
  EXPECT_EQ(GetText(object, "BrowseMenuText"), "&Browse Records");
}

}  // namespace
}  // namespace rangewerks::tests
