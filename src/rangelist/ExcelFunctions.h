// Routines usable without a range list: how sheet names become parts of workbook names, whether a
// sheet's layout is sound, where the library lives, and the saving of a posted sheet.
#pragma once

#include <memory>
#include <string>

#include "automation/member_table.h"
#include "forms/toolkit.h"
#include "platform/excel.h"
#include "platform/system.h"
#include "rangelist/elgErrors.h"

namespace rangewerks {

class clsInterfaceRangeList;

/// A global object of the library. Its methods hold no state.
class ExcelFunctions final : public automation::AutomationClass {
 public:
  /// CallSaveSheet needs both, DllPath the system, the others neither.
  ExcelFunctions(std::shared_ptr<const platform::System> system,
                 std::shared_ptr<forms::Toolkit> toolkit)
      : system_(std::move(system)), toolkit_(std::move(toolkit)) {}

  const automation::MemberTable& Members() const override;

  /// A sheet's part of a workbook name: blanks, "-" and "&" become "_", "+" becomes "plus", and a
  /// digit in front gets "_" before it. Nothing else is changed and the length isn't limited, so
  /// two sheets can share one part and the host may refuse the name.
  static std::string CorrectedSheetName(const std::string& SheetName);
  /// CorrectedSheetName and two underscores.
  static std::string MultiTabSheetPrefix(const std::string& sSheetName);
  /// MultiTabSheetPrefix and the range's name, to which the caller has added any prefix of its own.
  static std::string RangeNameMultiTab(const std::string& sSheetName, const std::string& sRngName);
  /// The folder of the library's own file, without a separator behind it. Raises 53 when the
  /// system can't tell.
  std::string DllPath() const;

  /// True when the layout of the ranges that the list has found on its sheet is sound; raises
  /// 0x80040000 with what is wrong otherwise. Reads no cell. `xlsCurrent` isn't used.
  static bool ValidateRanges(const std::shared_ptr<clsInterfaceRangeList>& irList,
                             const excel::Worksheet& xlsCurrent);
  /// True when a selection is one cell; raises 700 for several rows, 701 for several columns.
  static bool ValidRangeForBrowse(const excel::Range& Rng);
  /// Turns a date typed without separators (311299) or with a short year (31/12/99) into a full
  /// date in the cell; the century is 20. Returns an empty text.
  static std::string FormatDateRange(const excel::Range& rngTrg);

  /// Saves a copy of the sheet's workbook by the file-save settings of the interface that keeps
  /// them under `sRegSection`; `sIdentifier` is what %i in the name's pattern stands for. Does
  /// nothing when the settings don't ask for it or the person cancels. A copy that can't be written
  /// is told to the person, not to the caller.
  void CallSaveSheet(const excel::Worksheet& wk_sheet, const std::string& sIdentifier,
                     const std::string& sRegSection) const;

 private:
  std::shared_ptr<const platform::System> system_;
  std::shared_ptr<forms::Toolkit> toolkit_;
};

}  // namespace rangewerks
