// The object that a posting interface talks to: it declares ranges, finds them on a sheet and reads
// typed values.
//
//   auto list = std::make_shared<clsInterfaceRangeList>();
//   list->Add("posting_date", hdiHeader, rdtDate, true);
//   list->Add("nominal_code", hdiDetail, rdtString, true);
//   list->set_ActSheet(excel::Worksheet(sheet));
//   list->let_SheetRangeNames(true);
//   list->SetIfRangesExist();
//   std::string code;
//   if (list->GetStrRange("nominal_code", code, 1)) ...
//
// Every operation on the sheet needs ActSheet and fails with error 91 before it is set. What the
// list believes about the sheet is what the last SetIfRangesExist left in the records.
//
// Each subject is defined in a file of its own: declaration.cpp, naming.cpp, locating.cpp,
// typed_reads.cpp, writes.cpp, clearing.cpp, bulk_values.cpp, size_checks.cpp, user_mapping.cpp;
// members.cpp declares the public members once for all callers.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "automation/dispatch.h"
#include "automation/member_table.h"
#include "errors/procedure.h"
#include "model/clsExInputRange.h"
#include "model/colExInputRangeList.h"
#include "model/colGroupHeadings.h"
#include "platform/excel.h"
#include "platform/system.h"
#include "rangelist/RangewerksErrors.h"

namespace rangewerks {

class clsRangeProperties;

class clsInterfaceRangeList final : public automation::AutomationClass {
 public:
  using Date = automation::Date;
  using Object = automation::Object;
  using Variant = automation::Variant;
  using Record = colExInputRangeList::Record;

  /// `system` tells who is logged on; without one nobody is.
  explicit clsInterfaceRangeList(std::shared_ptr<const platform::System> system = nullptr)
      : system_(std::move(system)) {}

  const automation::MemberTable& Members() const override;
  std::unique_ptr<automation::Enumerator> Enumerate() override { return ranges_->Enumerate(); }
  /// Events: RangeAddValidationError, without arguments, and RangeAddTooltipError with iStage.
  automation::Connection Connect(automation::EventHandler handler) override {
    return events_.Connect(std::move(handler));
  }

  // --- declaration and switches ------------------------------------------------------------------

  /// Declares a range and returns its record, whose Tag takes DefaultTag. Arguments and failure as
  /// colExInputRangeList::Add.
  Record Add(const std::string& RangeName, eRangeHeadDetailInd DetailIndicator,
             eRangeDataType RangeDataType, bool IsMandatory, bool RangeExists,
             const std::string& Description, std::int16_t DataLength, const Variant& Value,
             std::string& sKey, bool IsBrowseable, const std::string& BrowseColumn,
             const std::string& Group);
  /// The same with every optional argument left out but those given.
  Record Add(const std::string& RangeName, eRangeHeadDetailInd DetailIndicator,
             eRangeDataType RangeDataType, bool IsMandatory = false,
             const std::string& Description = {}, std::int16_t DataLength = 0);
  /// Declares a range like the record given, which itself stays off the list. Not copied: Tag,
  /// GroupRange, CanBeHeader, BecomeHeader, IsSageCompany, IsValueFound, BlankValueIsFound, Offset.
  Record AddCls(const std::shared_ptr<clsExInputRange>& oExRngInput);
  /// The short way of declaring; `sDetInd` is "H", "D" or "H/D". Tag stays empty.
  void AddInterface(const std::string& sRName, bool isMan, const std::string& sDetInd,
                    eRangeDataType eDataType, std::int16_t iLen = 0, const std::string& sDesc = {});
  /// Empties the list of ranges; everything else keeps its value.
  void ClearList() { ranges_->ClearList(); }
  /// The record at a 1-based position or with a key. Raises 9 or 5 when there is none.
  Record Item(const Variant& vntIndexKey) const { return ranges_->Item(vntIndexKey); }
  std::int32_t Count() const { return ranges_->Count(); }
  void Remove(const Variant& vntIndexKey) { ranges_->Remove(vntIndexKey); }
  /// Does nothing and returns false; older callers still call it.
  static bool ChangeSESConnection() { return false; }

  /// The sheet that all operations work on. Setting it refreshes nothing.
  const excel::Worksheet& get_ActSheet() const { return actSheet_; }
  void set_ActSheet(const excel::Worksheet& value) { actSheet_ = value; }
  std::shared_ptr<colGroupHeadings> get_GroupHeadings() const { return groupHeadings_; }
  /// Whether a range of the list has a group, as of the last SetIfRangesExist.
  bool get_GroupFound() const { return groupFound_; }
  bool get_SaveTheSpreadSheet() const { return saveTheSpreadSheet_; }
  void let_SaveTheSpreadSheet(bool value) { saveTheSpreadSheet_ = value; }
  /// The interface's own automation object.
  const Object& get_CallerObject() const { return callerObject_; }
  void set_CallerObject(const Object& value) { callerObject_ = value; }
  bool get_UseCallerObject() const { return useCallerObject_; }
  void let_UseCallerObject(bool value) { useCallerObject_ = value; }
  bool get_AddNumberValidation() const { return addNumberValidation_; }
  void let_AddNumberValidation(bool value) { addNumberValidation_ = value; }
  bool get_StripSpacesOnDownload() const { return stripSpacesOnDownload_; }
  void let_StripSpacesOnDownload(bool value) { stripSpacesOnDownload_ = value; }
  bool get_UseNewBrowseShortcutName() const { return useNewBrowseShortcutName_; }
  void let_UseNewBrowseShortcutName(bool value) { useNewBrowseShortcutName_ = value; }
  /// Writes go only into blank cells.
  bool get_LeaveBlankOnPopulate() const { return leaveBlankOnPopulate_; }
  void let_LeaveBlankOnPopulate(bool value) { leaveBlankOnPopulate_ = value; }
  /// A cell with a formula keeps it.
  bool get_LeaveFormulaOnPopulate() const { return leaveFormulaOnPopulate_; }
  void let_LeaveFormulaOnPopulate(bool value) { leaveFormulaOnPopulate_ = value; }
  /// Clearing all ranges doesn't look for formulas.
  bool get_DoNotCheckIsFormula() const { return doNotCheckIsFormula_; }
  void let_DoNotCheckIsFormula(bool value) { doNotCheckIsFormula_ = value; }
  /// Stamped into Tag of each range that Add declares.
  const std::string& get_DefaultTag() const { return defaultTag_; }
  void let_DefaultTag(const std::string& value) { defaultTag_ = value; }

  // --- naming ------------------------------------------------------------------------------------

  /// The workbook name of a declared range under the scheme in force: the name itself, or the
  /// sheet's part, "__", RangePrefix and the name.
  std::string FullRangeName(const std::string& sRngName) const;
  /// The caller's wish for names with a sheet part; writing it puts it in force.
  bool get_SheetRangeNames() const { return sheetRangeNames_; }
  void let_SheetRangeNames(bool value);
  /// What is in force.
  bool get_UsingSheetRangeNames() const { return usingSheetRangeNames_; }
  const std::string& get_RangePrefix() const { return rangePrefix_; }
  void let_RangePrefix(const std::string& value) { rangePrefix_ = value; }
  /// Renames the workbook names of declared ranges so that each carries the part of the sheet on
  /// which it lies; the sheet scheme is in force afterwards. A failure leaves what is renamed.
  void CorrectRangeNames();
  /// Renames the workbook names of the declared ranges of ActSheet, which is about to be called
  /// `NewName`. What can't be renamed is passed over.
  void RenameNamesForNewSheet(const std::string& NewName);

  // --- locating ----------------------------------------------------------------------------------

  /// Walks the workbook's names once and marks in the records which ranges the sheet has and which
  /// of them act as headers.
  void SetIfRangesExist();
  /// What SetIfRangesExist found for a declared range. Raises 0x80040000 for another name.
  bool RangeExists(const std::string& sRngName);
  /// The area of a declared range. Raises the host's error when there is none.
  excel::Range GetRange(const std::string& sName) const;
  /// Whether an area touches a declared range that exists. Raises 0x80040000 for another name.
  bool InRange(const std::string& sRName, const excel::Range& rngTarget);
  /// The first range on the list that one cell lies in, with its 1-based line; none and -1 when
  /// there is none.
  Record InAnyRange(const excel::Range& rngTarget, std::int32_t& lOffset);
  /// The browse column of the first range that an area touches; empty when it has no browse.
  std::string BrowseColumn(const excel::Range& rngTarget);
  /// The 1-based line of one cell in a declared range, or -1 when it lies elsewhere.
  std::int32_t CellOffsetInRange(const excel::Range& Rng, const std::string& sRngName);

  // --- typed reads -------------------------------------------------------------------------------
  //
  // True when there is a value. The value argument gets the empty value of its type when the range
  // isn't on the sheet or the cell is blank. `lIndex` is the 1-based line; a range that acts as a
  // header reads its first cell. Bad content raises errRwkInvalidRangeValue and leaves the range
  // and line in InvalidRange and InvalidRow.

  /// A number by the locale's rules; errPLInvalidDecimalPlaces when it has too many places.
  bool GetValRange(const std::string& sRName, double& dVal, std::int32_t lIndex);
  /// The leading number of the text, rounded down; raises 6 beyond 16 bits.
  bool GetIntRange(const std::string& sRName, std::int16_t& iInt, std::int32_t lIndex);
  /// "Y", "YES", "N" or "NO" in any case.
  bool GetYNRange(const std::string& sRName, bool& bVal, std::int32_t lIndex);
  /// The trimmed text, cut to DataLength characters.
  bool GetStrRange(const std::string& sRName, std::string& sVal, std::int32_t lIndex);
  /// A date without its time of day.
  bool GetDateRange(const std::string& sRName, Date& datVal, std::int32_t lIndex);
  /// The text of GetStrRange, without telling whether there was one.
  std::string GetStrRangeBlk(const std::string& sRName, std::int32_t lIndex);

  /// RangeName of the range whose last typed read failed; a later good read leaves it.
  const std::string& get_InvalidRange() const { return invalidRange_; }
  /// Line index of that failed read, 0 for a header. Raises 0x80040000 when no read has failed.
  std::int32_t get_InvalidRow() const;
  /// DetailIndicator of that range. Raises 0x80040000 when no read has failed.
  eRangeHeadDetailInd get_InvalidRangeType() const;
  /// For all ranges, a blank cell counts as found.
  bool get_BlankRangeIsThere() const { return blankRangeIsThere_; }
  void let_BlankRangeIsThere(bool value) { blankRangeIsThere_ = value; }
  /// Number reads enforce DecimalPlaces.
  bool get_ValidateDecimalPlaces() const { return validateDecimalPlaces_; }
  void let_ValidateDecimalPlaces(bool value) { validateDecimalPlaces_ = value; }

  // --- writes and clearing -----------------------------------------------------------------------
  //
  // `lIndex` is the 1-based line; a range that acts as a header is written to in its first cell. A
  // declared range that isn't on the sheet is passed over in silence; a name that isn't declared
  // raises 5. The switches LeaveBlankOnPopulate and LeaveFormulaOnPopulate can refuse a cell.

  void PopulateDoubleRange(const std::string& sRangeName, double dValue, std::int32_t lIndex) const;
  /// Writes "Y" or "N".
  void PopulateYNRange(const std::string& sRangeName, bool bVal, std::int32_t lIndex) const;
  /// Writes a text, without its trailing blanks when StripSpacesOnDownload is set.
  void PopulateRange(const std::string& sRangeName, const std::string& sValue,
                     std::int32_t lIndex) const;
  /// Writes a date without its time of day; the zero date empties the cell.
  void PopulateDateRange(const std::string& sRangeName, Date datValue, std::int32_t lIndex) const;
  /// Writes a field of a recordset's current row, keeping its kind; null becomes an empty text.
  /// `rsUp` is any object that answers Fields(name).Value.
  void PopulateRangeRs(const Object& rsUp, const std::string& sRangeName,
                       const std::string& sFldName, std::int32_t lIndex) const;
  /// Clears the whole range, formulas included; formats and validation stay.
  void ClearRange(const std::string& sRangeName) const;
  /// Clears the ranges with that Tag as the last SetIfRangesExist found them, except those whose
  /// Group or RangeName an exclusion collection holds, and those with a formula unless
  /// `bDontCheckFormula`.
  void ClearRangesForTag(const std::string& sTag, const Object& colExcludeGroups = {},
                         const Object& colExcludeRanges = {}, bool bDontCheckFormula = false) const;
  /// Finds out what the sheet has and clears it but for the kinds left out; a range with a formula
  /// stays unless DoNotCheckIsFormula is set.
  void ClearAllRanges(bool bNotHeader = false, bool bNotSageCompany = false,
                      bool bNotHeaderDetail = false);
  /// Finds out what the sheet has and clears the detail ranges that have no formula.
  void ClearDetailRanges();
  /// Whether any cell of a declared range holds a formula.
  bool IsFormula(const std::string& sRangeName) const;

  // --- bulk values and size checks ---------------------------------------------------------------

  /// Reads a line of every declared range of that kind, download ranges left out, into Value and
  /// IsValueFound of its record.
  void GetValues(std::int32_t lIndex, eRangeHeadDetailInd HeadDetailInd);
  /// Writes Value of every declared range of that kind to a line.
  void PutValues(std::int32_t lIndex, eRangeHeadDetailInd HeadDetailInd) const;
  /// Whether a range has that many rows; `lSizeInvalidRange` is its number of rows when it hasn't,
  /// and -1 otherwise. A range that isn't on the sheet passes.
  bool CheckRangeSize(const std::string& sRngName, std::int32_t lCheckAgainstSize,
                      std::int32_t& lSizeInvalidRange);
  /// Raises 0x80040000 for the first range whose GroupRange is `sRngName` and whose number of rows
  /// differs from that range's.
  void CheckGroupSizes(const std::string& sRngName) const;

  /// ExcelFunctions::ValidateRanges of this list.
  bool ValidateRanges();

  // --- placing on a sheet (defined in sheetbuild) ------------------------------------------------

  /// Makes the selected cells the declared range `oRngProps->RangeName`: sizes them, names them,
  /// gives them number format, validation, input message, heading and colours as the properties
  /// ask, and returns the range's record, which from then on exists. `rngSelected` becomes the
  /// cells that were placed. A validation or an input message that can't be added raises an event
  /// and is left out. Raises 0x80040000 for a selection of several columns, or of several rows for
  /// a header; what is done by then stays done.
  Record AddRangeToSpreadsheet(excel::Range& rngSelected,
                               const std::shared_ptr<clsRangeProperties>& oRngProps);
  /// Declares the scratch definition of the properties and places it on their RangeArea. Always
  /// returns null. The range stays declared when it can't be placed.
  Record AddDetailRangeToSpreadsheet(const std::shared_ptr<clsRangeProperties>& oRngProps);
  /// Does nothing; older callers still call it.
  void AddRangeNotOnListToSpreadsheet(const excel::Range& /*rngSelected*/,
                                      const std::shared_ptr<clsRangeProperties>& /*oRngProps*/) {}

  // --- user mapping ------------------------------------------------------------------------------

  /// Declares "windows_users" and "sage_users".
  void AddUserRangesToList();
  /// The Sage user for the person at the machine: the one cell of "sage_users", or the cell beside
  /// the person's name in "windows_users", whose last row never counts. Raises with the source
  /// "GetSageUserName".
  std::string GetSageUserName();
  /// The name of the user logged on. Raises 0x80040000 when the system can't tell.
  std::string GetWindowsUserName() const;

 private:
  void RenameRangeForSheet(const excel::Worksheet& sheet, const std::string& declared,
                           const std::string& oldName) const;
  void CorrectRangeName(const excel::Name& name) const;
  Record DeclaredAtEndOf(const std::string& workbookName) const;
  void ForgetWhatExists();
  void MarkIfDeclared(const std::string& workbookName, const std::string& sheetPrefix,
                      Record& record);
  void LookAtArea(const std::string& workbookName, bool foreign, clsExInputRange& record);
  Record FirstRangeAt(const excel::Range& rngTarget);
  std::int32_t LineInRange(const excel::Range& cell, const std::string& rangeName) const;
  static std::int16_t CellRow(const excel::Range& cell);

  template <class Read>
  bool TypedRead(const char* literal, const std::string& sRName, std::int32_t lIndex,
                 const Read& read);
  excel::Range CellOf(const std::string& sRName, std::int32_t lIndex) const;
  template <class Convert>
  void Converting(const std::string& sRName, const Convert& convert) const;
  bool CountsAsFound(const std::string& text) const;
  void CheckDecimalPlaces(double value) const;
  void Invalidate(const std::string& sRName, std::int32_t lIndex);
  Date DateFromText(const std::string& text) const;
  std::string DateFormatForLocale() const;

  template <class Write>
  void Populate(const char* literal, const std::string& sRangeName, std::int32_t lIndex,
                const Write& write) const;
  bool AllowPopulate(const excel::Range& cell) const;
  void ClearUnlessFormula(const std::string& sRangeName, bool formulasToo) const;

  template <class T>
  void ReadValue(bool (clsInterfaceRangeList::*read)(const std::string&, T&, std::int32_t),
                 std::int32_t lIndex, clsExInputRange& record);
  void CheckMemberSize(const clsExInputRange& member, const std::string& master,
                       std::int32_t masterSize) const;

  static std::int32_t SizeSelection(excel::Range& rngSelected, const clsExInputRange& definition,
                                    const clsRangeProperties& properties);
  void ApplyNumberFormat(const excel::Range& area, const clsExInputRange& definition) const;
  void AddValidationAndTooltip(const excel::Validation& validation,
                               const clsExInputRange& definition, clsRangeProperties& properties);
  void MakeRoomForTooltip(const excel::Validation& validation, clsRangeProperties& properties);
  void SetTooltip(const excel::Validation& validation, const clsExInputRange& definition) const;
  void TellTooltipError(std::int16_t stage) const;
  std::string HintFor(const clsExInputRange& definition) const;
  static void DecideHeading(const clsExInputRange& definition, std::int32_t rows,
                            clsRangeProperties& properties);
  void FinishFormat(const excel::Range& area, const clsExInputRange& definition,
                    clsRangeProperties& properties) const;

  bool ValidateUserRanges(bool bMissingIsAllowed);
  std::string MappedSageUser(const excel::Range& sageUsers) const;

  std::shared_ptr<const platform::System> system_;
  std::shared_ptr<colExInputRangeList> ranges_ = std::make_shared<colExInputRangeList>();
  excel::Worksheet actSheet_;
  Record currentRange_;  // what the last RangeExists found; used right after that call
  bool sheetRangeNames_ = false;
  bool usingSheetRangeNames_ = false;
  std::shared_ptr<colGroupHeadings> groupHeadings_ = std::make_shared<colGroupHeadings>();
  bool groupFound_ = false;
  bool saveTheSpreadSheet_ = false;
  Object callerObject_;
  bool useCallerObject_ = false;
  bool blankRangeIsThere_ = false;
  std::string invalidRange_;
  std::int32_t invalidRow_ = 0;
  bool addNumberValidation_ = false;
  bool stripSpacesOnDownload_ = false;
  bool validateDecimalPlaces_ = false;
  bool useNewBrowseShortcutName_ = false;
  bool leaveBlankOnPopulate_ = false;
  bool leaveFormulaOnPopulate_ = false;
  std::string rangePrefix_;
  std::string defaultTag_;
  bool doNotCheckIsFormula_ = false;
  automation::EventSource events_;
};

}  // namespace rangewerks

namespace rangewerks::automation {

/// The order form of a placing is known by name only here; sheetbuild, which has the class, defines
/// this.
template <>
struct VariantCast<std::shared_ptr<clsRangeProperties>> {
  static constexpr TypeCode kType = TypeCode::Object;
  static std::shared_ptr<clsRangeProperties> From(const Variant& value);
};

}  // namespace rangewerks::automation
