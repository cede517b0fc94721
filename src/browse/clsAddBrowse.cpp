#include "browse/clsAddBrowse.h"

#include "browse/macro_text.h"
#include "errors/attempt.h"
#include "errors/procedure.h"
#include "platform/excel_document_properties.h"

namespace rangewerks {
namespace {

constexpr const char* kWorkbookModule = "ThisWorkbook";
constexpr const char* kWorkbookOpen = "Workbook_Open";
/// The condition, what it does, and its end.
constexpr std::int32_t kLinesOfCondition = 3;

}  // namespace

clsAddBrowse::clsAddBrowse() {
  let_sCaption(get_BrowseMenuText());
  let_sCommand("BrowseRecords");
  let_sComponent("OstrelBrowseModule");
}

clsExcelVB& clsAddBrowse::Editor() {
  if (!editor_) editor_ = std::make_unique<clsExcelVB>();
  return *editor_;
}

clsExcelBrowse& clsAddBrowse::Shortcut() {
  if (!shortcut_) shortcut_ = std::make_unique<clsExcelBrowse>();
  return *shortcut_;
}

void clsAddBrowse::let_bNewMethod(bool value) {
  bNewMethod_ = value;
  Shortcut().let_UseNewMethod(value);
}

void clsAddBrowse::set_WorkBook(const excel::Workbook& value) {
  Editor().set_WorkBook(value);
  Shortcut().set_WorkBook(value);
}

void clsAddBrowse::AddBrowseToWorkbook() {
  Procedure("AddBrowseToWorkbook of Clas Module clsAddBrowse Line#:", [&](Line& at) {
    at();
    if (bNewMethod_) {
      SetDocumentPropertyOn();
    } else {
      AddWorkbookOpenBrowse();
    }
  });
}

void clsAddBrowse::DeleteBrowseFromWorkbook() {
  Procedure("DeleteBrowseFromWorkbook of Class Module clsAddBrowse Line#:", [&](Line& at) {
    at();
    if (bNewMethod_) return SetDocumentPropertyOff();
    clsExcelVB& editor = Editor();
    editor.let_Module(kWorkbookModule);
    editor.let_Procedure(kWorkbookOpen);
    at();
    editor.DeleteThisText(ConditionLine(), kLinesOfCondition);
  });
}

std::string clsAddBrowse::ConditionLine() {
  return "  If Application.CommandBars(\"Cell\").Controls(1).Caption <> " +
         MacroLiteral(get_BrowseMenuText()) + " Then";
}

void clsAddBrowse::AddWorkbookOpenBrowse() {
  Procedure("AddWorkbookOpenBrowse of Clas Module clsAddBrowse Line#:", [&](Line& at) {
    clsExcelVB& editor = Editor();
    editor.let_Module(kWorkbookModule);
    editor.let_Procedure(kWorkbookOpen);
    at();
    editor.DeleteProcedure();
    editor.ClearCode();
    at();
    editor.AddCodeLine("Private Sub Workbook_Open()");
    editor.AddCodeLine(ConditionLine());
    editor.AddCodeLine("      Application.ShortcutMenus(xlWorksheetCell).MenuItems.Add Caption:=" +
                       MacroLiteral(get_BrowseMenuText()) +
                       R"(, OnAction:="BrowseRecords", Before:="Cut")");
    editor.AddCodeLine("  End if");
    editor.AddCodeLine("End Sub");
    at();
    editor.InsertCode();
  });
}

void clsAddBrowse::SetDocumentPropertyOn() {
  Procedure("SetDocumentPropertyOn of Clas Module clsAddBrowse Line#:", [&](Line& at) {
    const std::string component = get_sComponent();
    at();
    const excel::DocumentProperties properties = get_WorkBook().get_CustomDocumentProperties();
    Attempt([&] { properties.Add(component, excel::msoPropertyTypeBoolean, true); });
    at();
    properties.get_Item(component).let_Default(true);
  });
}

void clsAddBrowse::SetDocumentPropertyOff() {
  Attempt([&] {
    get_WorkBook().get_CustomDocumentProperties().get_Item(get_sComponent()).let_Default(false);
  });
}

bool clsAddBrowse::IsBrowse() {
  if (bNewMethod_) return Shortcut().IsBrowse();
  return Attempt([&] {
    get_WorkBook()
        .get_VBProject()
        .get_VBComponents()
        .get_Item(get_sComponent())
        .get_CodeModule()
        .get_CountOfLines();
  });
}

void clsAddBrowse::DeleteBrowseShortcut() {
  Procedure("DeleteBrowseShortcut of Class Module clsAddBrowse Line#:", [&](Line& at) {
    at();
    Shortcut().DeleteBrowseShortcut();
  });
}

const automation::MemberTable& clsAddBrowse::Members() const {
  using C = clsAddBrowse;
  static const char* const kCaption = "Text of the menu entry.";
  static const char* const kCommand = "Kept for the caller.";
  static const char* const kComponent =
      "Name of the module with the browse macro, and of the document property.";
  static const char* const kNewMethod =
      "Whether a document property marks the workbook, rather than a macro.";
  static const char* const kNewName = "Which of the two menu texts applies.";
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("clsAddBrowse")
          .Get(1, "sCaption", &C::get_sCaption, kCaption)
          .Let(1, "sCaption", &C::let_sCaption, kCaption)
          .Get(2, "sCommand", &C::get_sCommand, kCommand)
          .Let(2, "sCommand", &C::let_sCommand, kCommand)
          .Get(3, "sComponent", &C::get_sComponent, kComponent)
          .Let(3, "sComponent", &C::let_sComponent, kComponent)
          .Get(4, "bNewMethod", &C::get_bNewMethod, kNewMethod)
          .Let(4, "bNewMethod", &C::let_bNewMethod, kNewMethod)
          .Get(5, "WorkBook", &C::get_WorkBook, "The workbook.")
          .Set(5, "WorkBook", &C::set_WorkBook, "The workbook.")
          .Method(6, "AddBrowseToWorkbook", &C::AddBrowseToWorkbook, {},
                  "Marks the workbook as having a browse.")
          .Method(7, "DeleteBrowseFromWorkbook", &C::DeleteBrowseFromWorkbook, {},
                  "Takes the mark of the browse from the workbook.")
          .Method(8, "IsBrowse", &C::IsBrowse, {}, "Whether the workbook has a browse.")
          .Method(9, "AddBrowseShortcut", &C::AddBrowseShortcut, {},
                  "Puts the entry at the top of the menu of cells, unless it is there.")
          .Method(10, "DeleteBrowseShortcut", &C::DeleteBrowseShortcut, {},
                  "Removes the entry from the menu of cells, if it is there.")
          .Get(11, "UseNewBrowseShortcutName", &C::get_UseNewBrowseShortcutName, kNewName)
          .Let(11, "UseNewBrowseShortcutName", &C::let_UseNewBrowseShortcutName, kNewName)
          .Get(12, "BrowseMenuText", &C::get_BrowseMenuText, "The menu text that applies.");
  return table;
}

}  // namespace rangewerks
