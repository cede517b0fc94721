// The slots of what edits macros and marks workbooks, in the order of their member tables.
#include <rangewerks.h>

#include "com/rangewerks/interfaces.h"

namespace rangewerks::com {

DualInterface ExcelVBInterface() {
  using I = ::_clsExcelVB;
  return MakeDualInterface<I, &I::get_WorkBook, &I::putref_WorkBook, &I::get_Module, &I::put_Module,
                           &I::get_Procedure, &I::put_Procedure, &I::ClearCode, &I::AddCodeLine,
                           &I::DeleteProcedure, &I::LoadProcedure, &I::DeleteThisText,
                           &I::InsertCode, &I::AddModule, &I::DeleteModule>("clsExcelVB");
}

DualInterface AddBrowseInterface() {
  using I = ::_clsAddBrowse;
  return MakeDualInterface<
      I, &I::get_sCaption, &I::put_sCaption, &I::get_sCommand, &I::put_sCommand, &I::get_sComponent,
      &I::put_sComponent, &I::get_bNewMethod, &I::put_bNewMethod, &I::get_WorkBook,
      &I::putref_WorkBook, &I::AddBrowseToWorkbook, &I::DeleteBrowseFromWorkbook, &I::IsBrowse,
      &I::AddBrowseShortcut, &I::DeleteBrowseShortcut, &I::get_UseNewBrowseShortcutName,
      &I::put_UseNewBrowseShortcutName, &I::get_BrowseMenuText>("clsAddBrowse");
}

DualInterface ExcelBrowseInterface() {
  using I = ::_clsExcelBrowse;
  return MakeDualInterface<I, &I::get_UseNewBrowseShortcutName, &I::put_UseNewBrowseShortcutName,
                           &I::get_BrowseMenuText, &I::get_UseNewMethod, &I::put_UseNewMethod,
                           &I::get_Component, &I::put_Component, &I::get_Command, &I::put_Command,
                           &I::get_Caption, &I::put_Caption, &I::get_WorkBook, &I::putref_WorkBook,
                           &I::IsBrowse, &I::AddBrowseShortcut, &I::DeleteBrowseShortcut>(
      "clsExcelBrowse");
}

}  // namespace rangewerks::com
