// The public members of the range list, declared once for every caller, in the order of their
// slots. An identifier, once given, never changes.
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

const automation::MemberTable& clsInterfaceRangeList::Members() const {
  using C = clsInterfaceRangeList;
  using AddMember = Record (C::*)(const std::string&, eRangeHeadDetailInd, eRangeDataType, bool,
                                  bool, const std::string&, std::int16_t, const Variant&,
                                  std::string&, bool, const std::string&, const std::string&);
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("clsInterfaceRangeList")
          .Get(1, "StripSpacesOnDownload", &C::get_StripSpacesOnDownload,
               "Texts written to the sheet lose their blanks.")
          .Let(1, "StripSpacesOnDownload", &C::let_StripSpacesOnDownload,
               "Texts written to the sheet lose their blanks.")
          .Get(2, "AddNumberValidation", &C::get_AddNumberValidation,
               "Number ranges placed on a sheet get data validation.")
          .Let(2, "AddNumberValidation", &C::let_AddNumberValidation,
               "Number ranges placed on a sheet get data validation.")
          .Get(3, "InvalidRow", &C::get_InvalidRow, "Line of the last failed read; 0 for a header.")
          .Get(4, "InvalidRangeType", &C::get_InvalidRangeType,
               "DetailIndicator of the range of the last failed read.")
          .Get(5, "InvalidRange", &C::get_InvalidRange,
               "Name of the range of the last failed read.")
          .Get(6, "BlankRangeIsThere", &C::get_BlankRangeIsThere, "A blank cell counts as found.")
          .Let(6, "BlankRangeIsThere", &C::let_BlankRangeIsThere, "A blank cell counts as found.")
          .Get(7, "SaveTheSpreadSheet", &C::get_SaveTheSpreadSheet,
               "The administration form offers saving.")
          .Let(7, "SaveTheSpreadSheet", &C::let_SaveTheSpreadSheet,
               "The administration form offers saving.")
          .Get(8, "CallerObject", &C::get_CallerObject, "The interface's own automation object.")
          .Set(8, "CallerObject", &C::set_CallerObject, "The interface's own automation object.")
          .Get(9, "UseCallerObject", &C::get_UseCallerObject,
               "The administration form uses CallerObject.")
          .Let(9, "UseCallerObject", &C::let_UseCallerObject,
               "The administration form uses CallerObject.")
          .Get(10, "GroupFound", &C::get_GroupFound, "A range of the list has a group.")
          .Get(11, "UsingSheetRangeNames", &C::get_UsingSheetRangeNames,
               "Workbook names carry a sheet part now.")
          .Method(12, "FullRangeName", &C::FullRangeName, {{"sRngName"}},
                  "The workbook name of a declared range.")
          .Get(13, "SheetRangeNames", &C::get_SheetRangeNames,
               "Workbook names are to carry a sheet part.")
          .Let(13, "SheetRangeNames", &C::let_SheetRangeNames,
               "Workbook names are to carry a sheet part.")
          .Get(14, "GroupHeadings", &C::get_GroupHeadings,
               "The headings under which ranges are shown.")
          .Get(15, "ActSheet", &C::get_ActSheet, "The sheet that all operations work on.")
          .Set(15, "ActSheet", &C::set_ActSheet, "The sheet that all operations work on.")
          .Method(16, "ValidateRanges", &C::ValidateRanges, {},
                  "Whether the layout of the ranges is sound.")
          .Method(17, "InRange", &C::InRange, {{"sRName"}, {"rngTarget"}},
                  "Whether an area touches a declared range.")
          .Method(18, "InAnyRange", &C::InAnyRange, {{"rngTarget"}, {"lOffset"}},
                  "The first range that a cell lies in, and its line.")
          .Method(19, "BrowseColumn", &C::BrowseColumn, {{"rngTarget"}},
                  "The browse column of the range under an area.")
          .Method(20, "AddInterface", &C::AddInterface,
                  {{"sRName"},
                   {"isMan"},
                   {"sDetInd"},
                   {"eDataType"},
                   {"iLen", std::int16_t{0}},
                   {"sDesc", ""}},
                  "Declares a range by its short codes.")
          .Method(21, "ClearList", &C::ClearList, {}, "Takes all ranges out of the list.")
          .Method(22, "SetIfRangesExist", &C::SetIfRangesExist, {},
                  "Finds out which declared ranges the sheet has.")
          .Method(23, "AddUserRangesToList", &C::AddUserRangesToList, {},
                  "Declares the ranges of the user mapping.")
          .Method(25, "GetRange", &C::GetRange, {{"sName"}}, "The area of a declared range.")
          .Method(26, "GetValRange", &C::GetValRange, {{"sRName"}, {"dVal"}, {"lIndex"}},
                  "Reads a number.")
          .Method(27, "GetIntRange", &C::GetIntRange, {{"sRName"}, {"iInt"}, {"lIndex"}},
                  "Reads a whole number of 16 bits.")
          .Method(28, "GetStrRangeBlk", &C::GetStrRangeBlk, {{"sRName"}, {"lIndex"}},
                  "Reads a text and returns it.")
          .Method(29, "GetStrRange", &C::GetStrRange, {{"sRName"}, {"sVal"}, {"lIndex"}},
                  "Reads a text.")
          .Method(30, "GetDateRange", &C::GetDateRange, {{"sRName"}, {"datVal"}, {"lIndex"}},
                  "Reads a date.")
          .Method(31, "PopulateRange", &C::PopulateRange, {{"sRangeName"}, {"sValue"}, {"lIndex"}},
                  "Writes a text.")
          .Method(32, "PopulateRangeRs", &C::PopulateRangeRs,
                  {{"rsUp"}, {"sRangeName"}, {"sFldName"}, {"lIndex"}},
                  "Writes a field of a recordset's row.")
          .Method(33, "ClearRange", &C::ClearRange, {{"sRangeName"}},
                  "Clears a range, formulas included.")
          .Method(34, "ChangeSESConnection", &C::ChangeSESConnection, {},
                  "Does nothing; kept for older callers.")
          .Method(35, "RangeExists", &C::RangeExists, {{"sRngName"}},
                  "Whether the sheet has a declared range.")
          .Method(36, "GetSageUserName", &C::GetSageUserName, {},
                  "The Sage user for the person at the machine.")
          .Method(37, "GetWindowsUserName", &C::GetWindowsUserName, {},
                  "The name of the user logged on.")
          .Method(38, "CorrectRangeNames", &C::CorrectRangeNames, {},
                  "Gives each workbook name the part of its own sheet.")
          .Method(39, "AddRangeNotOnListToSpreadsheet", &C::AddRangeNotOnListToSpreadsheet,
                  {{"rngSelected"}, {"oRngProps"}}, "Does nothing; kept for older callers.")
          .Method(40, "AddDetailRangeToSpreadsheet", &C::AddDetailRangeToSpreadsheet,
                  {{"oRngProps"}}, "Declares a range and places it; returns nothing.")
          .Method(41, "AddRangeToSpreadsheet", &C::AddRangeToSpreadsheet,
                  {{"rngSelected"}, {"oRngProps"}}, "Makes selected cells a declared range.")
          .Method(42, "CellOffsetInRange", &C::CellOffsetInRange, {{"Rng"}, {"sRngName"}},
                  "The line of a cell in a range, or -1.")
          .Method(43, "ClearAllRanges", &C::ClearAllRanges,
                  {{"bNotHeader", false}, {"bNotSageCompany", false}, {"bNotHeaderDetail", false}},
                  "Clears the ranges of the sheet but for the kinds left out.")
          .Method(44, "ClearDetailRanges", &C::ClearDetailRanges, {},
                  "Clears the detail ranges that have no formula.")
          .Method(45, "IsFormula", &C::IsFormula, {{"sRangeName"}},
                  "Whether any cell of a range holds a formula.")
          .Method(46, "Add", static_cast<AddMember>(&C::Add), colExInputRangeList::AddParameters(),
                  "Declares a range.")
          .Method(47, "AddCls", &C::AddCls, {{"oExRngInput"}},
                  "Declares a range like the record given.")
          .Get(0, "Item", &C::Item, {{"vntIndexKey"}}, "The range at a position or with a key.")
          .Get(48, "Count", &C::Count, "The number of ranges.")
          .Method(49, "Remove", &C::Remove, {{"vntIndexKey"}}, "Takes a range out of the list.")
          .Enumerator("NewEnum")
          .Get(50, "ValidateDecimalPlaces", &C::get_ValidateDecimalPlaces,
               "Number reads enforce DecimalPlaces.")
          .Let(50, "ValidateDecimalPlaces", &C::let_ValidateDecimalPlaces,
               "Number reads enforce DecimalPlaces.")
          .Method(51, "PopulateDateRange", &C::PopulateDateRange,
                  {{"sRangeName"}, {"datValue"}, {"lIndex"}}, "Writes a date.")
          .Method(52, "CheckRangeSize", &C::CheckRangeSize,
                  {{"sRngName"}, {"lCheckAgainstSize"}, {"lSizeInvalidRange"}},
                  "Whether a range has that many rows.")
          .Method(53, "CheckGroupSizes", &C::CheckGroupSizes, {{"sRngName"}},
                  "Raises when a range of a group differs in rows from the group's master.")
          .Get(54, "UseNewBrowseShortcutName", &C::get_UseNewBrowseShortcutName,
               "Passed on to the browse shortcut.")
          .Let(54, "UseNewBrowseShortcutName", &C::let_UseNewBrowseShortcutName,
               "Passed on to the browse shortcut.")
          .Method(55, "PopulateDoubleRange", &C::PopulateDoubleRange,
                  {{"sRangeName"}, {"dValue"}, {"lIndex"}}, "Writes a number.")
          .Get(56, "LeaveFormulaOnPopulate", &C::get_LeaveFormulaOnPopulate,
               "A cell with a formula keeps it.")
          .Let(56, "LeaveFormulaOnPopulate", &C::let_LeaveFormulaOnPopulate,
               "A cell with a formula keeps it.")
          .Get(57, "LeaveBlankOnPopulate", &C::get_LeaveBlankOnPopulate,
               "Writes go only into blank cells.")
          .Let(57, "LeaveBlankOnPopulate", &C::let_LeaveBlankOnPopulate,
               "Writes go only into blank cells.")
          .Method(58, "GetValues", &C::GetValues, {{"lIndex"}, {"HeadDetailInd"}},
                  "Reads a line of every range of a kind into the records.")
          .Get(59, "RangePrefix", &C::get_RangePrefix,
               "Stands ahead of every declared name in workbook names.")
          .Let(59, "RangePrefix", &C::let_RangePrefix,
               "Stands ahead of every declared name in workbook names.")
          .Method(60, "GetYNRange", &C::GetYNRange, {{"sRName"}, {"bVal"}, {"lIndex"}},
                  "Reads a yes or no.")
          .Method(61, "PopulateYNRange", &C::PopulateYNRange,
                  {{"sRangeName"}, {"bVal"}, {"lIndex"}}, "Writes a yes or no.")
          .Method(62, "PutValues", &C::PutValues, {{"lIndex"}, {"HeadDetailInd"}},
                  "Writes a line of every range of a kind from the records.")
          .Get(63, "DefaultTag", &C::get_DefaultTag,
               "Stamped into Tag of each range that Add declares.")
          .Let(63, "DefaultTag", &C::let_DefaultTag,
               "Stamped into Tag of each range that Add declares.")
          .Method(64, "ClearRangesForTag", &C::ClearRangesForTag,
                  {{"sTag"},
                   {"colExcludeGroups", Object()},
                   {"colExcludeRanges", Object()},
                   {"bDontCheckFormula", false}},
                  "Clears the ranges with a tag but for those excluded.")
          .Method(65, "RenameNamesForNewSheet", &C::RenameNamesForNewSheet, {{"NewName"}},
                  "Renames the workbook names of a sheet about to be renamed.")
          .Get(66, "DoNotCheckIsFormula", &C::get_DoNotCheckIsFormula,
               "Clearing all ranges doesn't look for formulas.")
          .Let(66, "DoNotCheckIsFormula", &C::let_DoNotCheckIsFormula,
               "Clearing all ranges doesn't look for formulas.");
  return table;
}

}  // namespace rangewerks
