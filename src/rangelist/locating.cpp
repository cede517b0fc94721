// Which declared ranges a sheet has, and which declared range lies under a cell.
#include <string_view>

#include "automation/conversions.h"
#include "errors/attempt.h"
#include "rangelist/ExcelFunctions.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

using automation::Error;
using automation::IsBlank;
using automation::kApplicationErrorBase;
using automation::Locale;

namespace {

excel::Application ApplicationOf(const excel::Worksheet& sheet) {
  try {
    return sheet.get_Parent().get_Application();
  } catch (const Error& error) {
    throw Error(kApplicationErrorBase, error.Source(),
                "Worksheet object error when checking if ranges exists on sheet \r\n" +
                    error.Description());
  }
}

}  // namespace

void clsInterfaceRangeList::SetIfRangesExist() {
  Procedure("SetIfRangesExist of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    groupFound_ = false;
    at();
    const excel::Application application = ApplicationOf(actSheet_);
    ForgetWhatExists();
    at();
    const std::string sheetPrefix = ExcelFunctions::MultiTabSheetPrefix(actSheet_.get_Name());
    at();
    const auto names = application.get_Names().Enumerate();
    Record record;
    for (Variant name; names->Next(name);) {
      at();
      MarkIfDeclared(excel::Name(name.AsObject()).get_Name(), sheetPrefix, record);
    }
  });
}

void clsInterfaceRangeList::ForgetWhatExists() {
  for (const Record& record : ranges_->Records()) {
    record->let_RangeExists(false);
    if (!IsBlank(record->get_Group())) groupFound_ = true;
  }
}

/// `record` is the record that an earlier name of the pass has found. A name that isn't declared
/// marks that one as there once more, even if its area was missing: callers rely on it.
void clsInterfaceRangeList::MarkIfDeclared(const std::string& workbookName,
                                           const std::string& sheetPrefix, Record& record) {
  std::string_view declared = workbookName;
  if (IsBlank(declared)) return;
  bool foreign = false;
  if (usingSheetRangeNames_) {
    if (declared.starts_with(sheetPrefix)) {
      declared.remove_prefix(sheetPrefix.size());
    } else {
      foreign = true;
    }
  }
  if (!IsBlank(rangePrefix_)) {
    if (!declared.starts_with(rangePrefix_)) return;
    declared.remove_prefix(rangePrefix_.size());
  }

  const Record found = ranges_->TryItem(declared);
  if (found) record = found;
  if (record) record->let_RangeExists(true);
  if (found) LookAtArea(workbookName, foreign, *found);
}

void clsInterfaceRangeList::LookAtArea(const std::string& workbookName, bool foreign,
                                       clsExInputRange& record) {
  excel::Range area;
  if (!Attempt([&] { area = actSheet_.get_Range(workbookName); })) {
    record.let_RangeExists(false);
    return;
  }
  // A declared range under a plain name that is valid here: this workbook has no sheet names.
  if (foreign) usingSheetRangeNames_ = false;
  if (record.get_CanBeHeader()) {
    Attempt([&] { record.let_BecomeHeader(area.get_Rows().get_Count() == 1); });
  }
}

bool clsInterfaceRangeList::RangeExists(const std::string& sRngName) {
  Record record = ranges_->TryItem(sRngName);
  if (!record) {
    throw Error(kApplicationErrorBase, "RangeExists",
                "RangeExists called on range not on list (" + sRngName + ")");
  }
  currentRange_ = std::move(record);
  return currentRange_->get_RangeExists();
}

excel::Range clsInterfaceRangeList::GetRange(const std::string& sName) const {
  return Procedure("GetRange of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    const std::string full = FullRangeName(sName);
    at();
    try {
      return actSheet_.get_Parent().get_Names(full).get_RefersToRange();
    } catch (const Error& error) {
      throw Error(error.Number(), error.Source(),
                  "Error finding area on sheet referred to by range: " + sName +
                      " (Full name:" + full + ").");
    }
  });
}

bool clsInterfaceRangeList::InRange(const std::string& sRName, const excel::Range& rngTarget) {
  return Procedure("InRange of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    if (!RangeExists(sRName)) return false;
    excel::Range common;
    Attempt([&] {
      const excel::Range area = GetRange(sRName);
      common = actSheet_.get_Application().Intersect(rngTarget, area);
    });
    return static_cast<bool>(common);
  });
}

clsInterfaceRangeList::Record clsInterfaceRangeList::FirstRangeAt(const excel::Range& rngTarget) {
  for (const Record& record : ranges_->Records()) {
    if (InRange(record->get_RangeName(), rngTarget)) return record;
  }
  return nullptr;
}

clsInterfaceRangeList::Record clsInterfaceRangeList::InAnyRange(const excel::Range& rngTarget,
                                                                std::int32_t& lOffset) {
  return Procedure("InAnyRange of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    Record record = FirstRangeAt(rngTarget);
    at();
    lOffset = record ? LineInRange(rngTarget, record->get_RangeName()) : -1;
    return record;
  });
}

std::int32_t clsInterfaceRangeList::CellOffsetInRange(const excel::Range& Rng,
                                                      const std::string& sRngName) {
  return Procedure("CellOffsetInRange of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    if (!InRange(sRngName, Rng)) return -1;
    at();
    return LineInRange(Rng, sRngName);
  });
}

std::string clsInterfaceRangeList::BrowseColumn(const excel::Range& rngTarget) {
  return Procedure("BrowseColumn of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    const Record record = FirstRangeAt(rngTarget);
    return record && record->get_IsBrowseable() ? record->get_BrowseColumn() : std::string();
  });
}

std::int32_t clsInterfaceRangeList::LineInRange(const excel::Range& cell,
                                                const std::string& rangeName) const {
  return CellRow(cell) - CellRow(GetRange(rangeName).get_Item(1)) + 1;
}

/// The row from the address, which only one cell has in this form: the address of a block has ":"
/// where the number ends and is a type mismatch.
std::int16_t clsInterfaceRangeList::CellRow(const excel::Range& cell) {
  return Procedure("CellRow of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    const std::string address = cell.get_Address();
    at();
    std::size_t start = 0;
    for (int piece = 1; piece < 3; ++piece) {
      start = address.find('$', start);
      if (start == std::string::npos) throw Error(automation::ErrorNumber::SubscriptOutOfRange);
      ++start;
    }
    const std::string row = address.substr(start, address.find('$', start) - start);
    return automation::ToInteger(row, Locale::Current());
  });
}

}  // namespace rangewerks
