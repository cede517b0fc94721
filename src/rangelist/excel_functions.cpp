// The routines that make names, and the member table of all of them.
#include "errors/procedure.h"
#include "rangelist/ExcelFunctions.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

std::string ExcelFunctions::CorrectedSheetName(const std::string& SheetName) {
  std::string result;
  result.reserve(SheetName.size() + 1);
  for (const char c : SheetName) {
    if (c == '+') {
      result += "plus";
    } else {
      result += c == ' ' || c == '-' || c == '&' ? '_' : c;
    }
  }
  if (!result.empty() && result.front() >= '0' && result.front() <= '9') result.insert(0, 1, '_');
  return result;
}

std::string ExcelFunctions::MultiTabSheetPrefix(const std::string& sSheetName) {
  return Procedure("MultiTabSheetPrefix of Class Module ExcelFunctions Line#:", [&](Line& at) {
    at();
    return CorrectedSheetName(sSheetName) + "__";
  });
}

std::string ExcelFunctions::RangeNameMultiTab(const std::string& sSheetName,
                                              const std::string& sRngName) {
  return Procedure("RangeNameMultiTab of Class Module ExcelFunctions Line#:", [&](Line& at) {
    at();
    return MultiTabSheetPrefix(sSheetName) + sRngName;
  });
}

std::string ExcelFunctions::DllPath() const {
  return Procedure("DllPath of Class Module ExcelFunctions Line#:", [&](Line& at) {
    at();
    if (!system_) throw automation::Error(automation::ErrorNumber::FileNotFound);
    const std::string file = system_->LibraryFile();
    const std::size_t separator = file.find_last_of("/\\");
    return separator == std::string::npos ? std::string() : file.substr(0, separator);
  });
}

const automation::MemberTable& ExcelFunctions::Members() const {
  using C = ExcelFunctions;
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("ExcelFunctions")
          .Method(1, "CorrectedSheetName", &C::CorrectedSheetName, {{"SheetName"}},
                  "A sheet's part of a workbook name.")
          .Method(2, "MultiTabSheetPrefix", &C::MultiTabSheetPrefix, {{"sSheetName"}},
                  "A sheet's part of a workbook name with the separator behind it.")
          .Method(3, "RangeNameMultiTab", &C::RangeNameMultiTab, {{"sSheetName"}, {"sRngName"}},
                  "The workbook name of a range on a sheet.")
          .Method(4, "DllPath", &C::DllPath, {}, "The folder of the library's own file.")
          .Method(5, "ValidateRanges", &C::ValidateRanges, {{"irList"}, {"xlsCurrent"}},
                  "Whether the layout of a list's ranges is sound.")
          .Method(6, "ValidRangeForBrowse", &C::ValidRangeForBrowse, {{"Rng"}},
                  "Whether a selection can take a browse.")
          .Method(7, "FormatDateRange", &C::FormatDateRange, {{"rngTrg"}},
                  "Turns a short date in a cell into a full one.")
          .Method(8, "CallSaveSheet", &C::CallSaveSheet,
                  {{"wk_sheet"}, {"sIdentifier"}, {"sRegSection"}},
                  "Saves a copy of a posted sheet's workbook as the settings say.");
  return table;
}

}  // namespace rangewerks
