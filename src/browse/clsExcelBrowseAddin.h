// The browse entry in the menu of the host's cells, and the mark of a workbook that has a browse.
//
//   clsExcelBrowseAddin browse;
//   browse.set_WorkBook(workbook);
//   browse.let_Component("Ledger.Browse");
//   browse.AddBrowseShortcut();       // "Brow&se Records", told apart by its tag
//   browse.SetDocumentPropertyOn();   // the workbook is to be browsed
//
// Who reacts when a person picks the entry is the business of others.
#pragma once

#include <string>

#include "platform/excel.h"
#include "platform/excel_menus.h"

namespace rangewerks {

class clsExcelBrowseAddin {
 public:
  /// Which of the two menu texts applies; false at first. A let also makes it the Caption.
  bool get_UseNewBrowseShortcutName() const { return useNewBrowseShortcutName_; }
  void let_UseNewBrowseShortcutName(bool value);
  /// "Brow&se Records" or "&Browse Records".
  std::string get_BrowseMenuText() const;
  /// The caller's choice of method; kept for it.
  bool get_UseNewMethod() const { return useNewMethod_; }
  void let_UseNewMethod(bool value) { useNewMethod_ = value; }
  /// Name of the document property, and tag of the entry.
  const std::string& get_Component() const { return component_; }
  void let_Component(const std::string& value) { component_ = value; }
  /// Kept for the caller; the entry runs no macro.
  const std::string& get_Command() const { return command_; }
  void let_Command(const std::string& value) { command_ = value; }
  /// Text of the entry: what was stored, or BrowseMenuText when that is blank.
  std::string get_Caption() const;
  void let_Caption(const std::string& value) { caption_ = value; }
  const excel::Workbook& get_WorkBook() const { return workBook_; }
  void set_WorkBook(const excel::Workbook& value) { workBook_ = value; }

  /// Whether the workbook has the document property and it is true. Never fails.
  bool IsBrowse() const;
  /// Makes the entry the first one of the menu, unless it is there. Fails as the host does.
  void AddBrowseShortcut() const;
  /// Removes the entry, if it is there.
  void DeleteBrowseShortcut() const;
  /// The first bar named "Cell" that has an entry of exactly that Caption, or a reference to none.
  excel::CommandBar FindBrowseCommandBar() const;
  /// Gives the workbook the document property, or makes it true.
  void SetDocumentPropertyOn() const;
  /// Makes the document property false, if there is one. Never fails.
  void SetDocumentPropertyOff() const;

 private:
  excel::CommandBarControl EntryOf(const excel::CommandBar& bar) const;

  bool useNewBrowseShortcutName_ = false;
  bool useNewMethod_ = true;
  std::string caption_;
  std::string command_;
  std::string component_;
  excel::Workbook workBook_;
};

}  // namespace rangewerks
