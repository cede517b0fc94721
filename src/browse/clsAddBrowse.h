// Marks a workbook as having a right-click browse: by a macro that adds the menu entry whenever the
// workbook opens, or by a document property and no code at all.
//
//   clsAddBrowse browse;
//   browse.set_WorkBook(workbook);
//   browse.let_bNewMethod(true);
//   browse.AddBrowseToWorkbook();
//   browse.IsBrowse();  // true
#pragma once

#include <memory>
#include <string>

#include "automation/member_table.h"
#include "browse/clsExcelBrowse.h"
#include "browse/clsExcelVB.h"

namespace rangewerks {

class clsAddBrowse final : public automation::AutomationClass {
 public:
  /// The entry has the current menu text, the command "BrowseRecords" and the component
  /// "OstrelBrowseModule".
  clsAddBrowse();

  const automation::MemberTable& Members() const override;

  /// Text of the menu entry.
  std::string get_sCaption() { return Shortcut().get_Caption(); }
  void let_sCaption(const std::string& value) { Shortcut().let_Caption(value); }
  /// Kept for the caller; the macro always calls BrowseRecords.
  std::string get_sCommand() { return Shortcut().get_Command(); }
  void let_sCommand(const std::string& value) { Shortcut().let_Command(value); }
  /// Name of the module with the browse macro, and of the document property.
  std::string get_sComponent() { return Shortcut().get_Component(); }
  void let_sComponent(const std::string& value) { Shortcut().let_Component(value); }
  /// True: the document property; false, and at first: the macro. A let tells the shortcut too.
  bool get_bNewMethod() const { return bNewMethod_; }
  void let_bNewMethod(bool value);
  excel::Workbook get_WorkBook() { return Editor().get_WorkBook(); }
  void set_WorkBook(const excel::Workbook& value);
  /// Which of the two menu texts applies. A let also makes it the caption.
  bool get_UseNewBrowseShortcutName() { return Shortcut().get_UseNewBrowseShortcutName(); }
  void let_UseNewBrowseShortcutName(bool value) { Shortcut().let_UseNewBrowseShortcutName(value); }
  std::string get_BrowseMenuText() { return Shortcut().get_BrowseMenuText(); }

  /// Marks the workbook. With the macro, a Workbook_Open that the workbook had is replaced with all
  /// that it did.
  void AddBrowseToWorkbook();
  /// Takes the mark away. Of the macro the empty procedure stays, and all of it when it was written
  /// with the other menu text; the document property stays and becomes false.
  void DeleteBrowseFromWorkbook();
  /// Whether the document property is there and true, or the module with the browse macro is there,
  /// be it empty. Never fails.
  bool IsBrowse();
  void AddBrowseShortcut() { Shortcut().AddBrowseShortcut(); }
  void DeleteBrowseShortcut();

 private:
  void AddWorkbookOpenBrowse();
  void SetDocumentPropertyOn();
  void SetDocumentPropertyOff();
  /// The line of the macro that asks whether the entry is there.
  std::string ConditionLine();

  // Both are made on first need.
  clsExcelVB& Editor();
  clsExcelBrowse& Shortcut();

  std::unique_ptr<clsExcelVB> editor_;
  std::unique_ptr<clsExcelBrowse> shortcut_;
  bool bNewMethod_ = false;
};

}  // namespace rangewerks
