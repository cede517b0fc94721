#include "browse/clsExcelBrowse.h"

namespace rangewerks {

const automation::MemberTable& clsExcelBrowse::Members() const {
  using C = clsExcelBrowse;
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("clsExcelBrowse")
          .Get(1, "UseNewBrowseShortcutName", &C::get_UseNewBrowseShortcutName,
               "Which of the two menu texts applies.")
          .Let(1, "UseNewBrowseShortcutName", &C::let_UseNewBrowseShortcutName,
               "Which of the two menu texts applies.")
          .Get(2, "BrowseMenuText", &C::get_BrowseMenuText, "The menu text that applies.")
          .Get(3, "UseNewMethod", &C::get_UseNewMethod, "The caller's choice of method.")
          .Let(3, "UseNewMethod", &C::let_UseNewMethod, "The caller's choice of method.")
          .Get(4, "Component", &C::get_Component,
               "Name of the document property and tag of the menu entry.")
          .Let(4, "Component", &C::let_Component,
               "Name of the document property and tag of the menu entry.")
          .Get(5, "Command", &C::get_Command, "Kept for the caller.")
          .Let(5, "Command", &C::let_Command, "Kept for the caller.")
          .Get(6, "Caption", &C::get_Caption, "Text of the menu entry.")
          .Let(6, "Caption", &C::let_Caption, "Text of the menu entry.")
          .Get(7, "WorkBook", &C::get_WorkBook, "The workbook.")
          .Set(7, "WorkBook", &C::set_WorkBook, "The workbook.")
          .Method(8, "IsBrowse", &C::IsBrowse, {},
                  "Whether the workbook's document property is there and true.")
          .Method(9, "AddBrowseShortcut", &C::AddBrowseShortcut, {},
                  "Puts the entry at the top of the menu of cells, unless it is there.")
          .Method(10, "DeleteBrowseShortcut", &C::DeleteBrowseShortcut, {},
                  "Removes the entry from the menu of cells, if it is there.");
  return table;
}

}  // namespace rangewerks
