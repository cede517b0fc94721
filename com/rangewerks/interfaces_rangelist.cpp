// The slots of the range list and its routines, in the order of their member tables.
#include <rangewerks.h>

#include "com/rangewerks/interfaces.h"

namespace rangewerks::com {

DualInterface RangeListInterface() {
  using I = ::_clsInterfaceRangeList;
  return MakeDualInterface<
      I, &I::get_StripSpacesOnDownload, &I::put_StripSpacesOnDownload, &I::get_AddNumberValidation,
      &I::put_AddNumberValidation, &I::get_InvalidRow, &I::get_InvalidRangeType,
      &I::get_InvalidRange, &I::get_BlankRangeIsThere, &I::put_BlankRangeIsThere,
      &I::get_SaveTheSpreadSheet, &I::put_SaveTheSpreadSheet, &I::get_CallerObject,
      &I::putref_CallerObject, &I::get_UseCallerObject, &I::put_UseCallerObject, &I::get_GroupFound,
      &I::get_UsingSheetRangeNames, &I::FullRangeName, &I::get_SheetRangeNames,
      &I::put_SheetRangeNames, &I::get_GroupHeadings, &I::get_ActSheet, &I::putref_ActSheet,
      &I::ValidateRanges, &I::InRange, &I::InAnyRange, &I::BrowseColumn, &I::AddInterface,
      &I::ClearList, &I::SetIfRangesExist, &I::AddUserRangesToList, &I::GetRange, &I::GetValRange,
      &I::GetIntRange, &I::GetStrRangeBlk, &I::GetStrRange, &I::GetDateRange, &I::PopulateRange,
      &I::PopulateRangeRs, &I::ClearRange, &I::ChangeSESConnection, &I::RangeExists,
      &I::GetSageUserName, &I::GetWindowsUserName, &I::CorrectRangeNames,
      &I::AddRangeNotOnListToSpreadsheet, &I::AddDetailRangeToSpreadsheet,
      &I::AddRangeToSpreadsheet, &I::CellOffsetInRange, &I::ClearAllRanges, &I::ClearDetailRanges,
      &I::IsFormula, &I::Add, &I::AddCls, &I::get_Item, &I::get_Count, &I::Remove, &I::get_NewEnum,
      &I::get_ValidateDecimalPlaces, &I::put_ValidateDecimalPlaces, &I::PopulateDateRange,
      &I::CheckRangeSize, &I::CheckGroupSizes, &I::get_UseNewBrowseShortcutName,
      &I::put_UseNewBrowseShortcutName, &I::PopulateDoubleRange, &I::get_LeaveFormulaOnPopulate,
      &I::put_LeaveFormulaOnPopulate, &I::get_LeaveBlankOnPopulate, &I::put_LeaveBlankOnPopulate,
      &I::GetValues, &I::get_RangePrefix, &I::put_RangePrefix, &I::GetYNRange, &I::PopulateYNRange,
      &I::PutValues, &I::get_DefaultTag, &I::put_DefaultTag, &I::ClearRangesForTag,
      &I::RenameNamesForNewSheet, &I::get_DoNotCheckIsFormula, &I::put_DoNotCheckIsFormula>(
      "clsInterfaceRangeList");
}

DualInterface ExcelFunctionsInterface() {
  using I = ::_ExcelFunctions;
  return MakeDualInterface<I, &I::CorrectedSheetName, &I::MultiTabSheetPrefix,
                           &I::RangeNameMultiTab, &I::DllPath, &I::ValidateRanges,
                           &I::ValidRangeForBrowse, &I::FormatDateRange, &I::CallSaveSheet>(
      "ExcelFunctions");
}

}  // namespace rangewerks::com
