// How a declared name becomes a workbook name, and how a workbook's names are brought back into
// line.
#include <string_view>

#include "errors/attempt.h"
#include "rangelist/ExcelFunctions.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {
namespace {

/// Stands between a sheet's part and the rest of a workbook name.
constexpr std::string_view kSeparator = "__";

}  // namespace

std::string clsInterfaceRangeList::FullRangeName(const std::string& sRngName) const {
  return Procedure("FullRangeName of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    if (!usingSheetRangeNames_) return sRngName;
    at();
    return ExcelFunctions::RangeNameMultiTab(actSheet_.get_Name(), rangePrefix_ + sRngName);
  });
}

void clsInterfaceRangeList::let_SheetRangeNames(bool value) {
  sheetRangeNames_ = value;
  usingSheetRangeNames_ = value;
}

void clsInterfaceRangeList::RenameRangeForSheet(const excel::Worksheet& sheet,
                                                const std::string& declared,
                                                const std::string& oldName) const {
  Procedure("RenameRangeForSheet of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    const excel::Range area = sheet.get_Range(oldName);
    at();
    const std::string newName = ExcelFunctions::RangeNameMultiTab(sheet.get_Name(), declared);
    if (newName == oldName) return;
    at();
    area.let_Name(newName);
    at();
    sheet.get_Parent().get_Names(oldName).Delete();
  });
}

void clsInterfaceRangeList::CorrectRangeNames() {
  const auto names =
      Procedure("CorrectRangeNames of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
        at();
        const excel::Application application = actSheet_.get_Parent().get_Application();
        at();
        return application.get_Names().Enumerate();
      });
  // From here no line is added to a failure: it reaches the caller as it is.
  for (Variant name; names->Next(name);) CorrectRangeName(excel::Name(name.AsObject()));
  usingSheetRangeNames_ = true;
}

void clsInterfaceRangeList::CorrectRangeName(const excel::Name& name) const {
  excel::Range area;
  if (!Attempt([&] { area = name.get_RefersToRange(); })) return;  // refers to no cells
  Attempt([&] { area.get_Address(); });

  const std::string workbookName = name.get_Name();
  const Record record = DeclaredAtEndOf(workbookName);
  if (!record) return;
  const std::string& declared = record->get_RangeName();
  const excel::Worksheet sheet = area.get_Parent();
  if (workbookName.find(kSeparator) == std::string::npos) {
    RenameRangeForSheet(sheet, workbookName, workbookName);
    return;
  }
  const std::string sheetPart = workbookName.substr(0, workbookName.size() - declared.size());
  if (sheetPart != ExcelFunctions::MultiTabSheetPrefix(sheet.get_Name())) {
    RenameRangeForSheet(sheet, declared, workbookName);
  }
}

clsInterfaceRangeList::Record clsInterfaceRangeList::DeclaredAtEndOf(
    const std::string& workbookName) const {
  for (const Record& record : ranges_->Records()) {
    const std::string& declared = record->get_RangeName();
    if (workbookName.size() > declared.size() && workbookName.ends_with(declared)) return record;
  }
  return nullptr;
}

void clsInterfaceRangeList::RenameNamesForNewSheet(const std::string& NewName) {
  for (const Record& record : ranges_->Records()) {
    // One range that fails, whatever the step, leaves the others to be renamed.
    Attempt([&] {
      const std::string declared = rangePrefix_ + record->get_RangeName();
      const std::string oldName = ExcelFunctions::RangeNameMultiTab(actSheet_.get_Name(), declared);
      const excel::Name name = actSheet_.get_Parent().get_Names(oldName);
      name.get_RefersToRange();
      name.let_Name(ExcelFunctions::RangeNameMultiTab(NewName, declared));
    });
  }
}

}  // namespace rangewerks
