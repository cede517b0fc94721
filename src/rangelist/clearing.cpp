// Clearing declared ranges.
#include "automation/conversions.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

namespace {

/// Whether a collection given by the caller holds a text; none holds nothing.
bool Holds(const automation::Object& collection, const std::string& text) {
  if (!collection) return false;
  bool found = false;
  const auto entries = collection.Enumerate();
  for (automation::Variant entry; entries->Next(entry);) {
    if (ToString(entry, automation::Locale::Current()) == text) found = true;
  }
  return found;
}

}  // namespace

void clsInterfaceRangeList::ClearRange(const std::string& sRangeName) const {
  ProcedureWith([&] { return "\r\n Range Name: " + sRangeName; },
                "ClearRange of Class Module clsInterfaceRangeList Line#:",
                [&](Line& at) {
                  at();
                  if (!ranges_->Item(sRangeName)->get_RangeExists()) return;
                  at();
                  GetRange(sRangeName).ClearContents();
                });
}

bool clsInterfaceRangeList::IsFormula(const std::string& sRangeName) const {
  return Procedure("IsFormula of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    const std::int32_t rows = GetRange(sRangeName).get_Rows().get_Count();
    at();
    for (std::int32_t row = 1; row <= rows; ++row) {
      if (GetRange(sRangeName).get_Item(row).get_HasFormula()) return true;
    }
    return false;
  });
}

void clsInterfaceRangeList::ClearUnlessFormula(const std::string& sRangeName,
                                               bool formulasToo) const {
  if (formulasToo || !IsFormula(sRangeName)) ClearRange(sRangeName);
}

/// Callers know this member's failures under its older name.
void clsInterfaceRangeList::ClearRangesForTag(const std::string& sTag,
                                              const Object& colExcludeGroups,
                                              const Object& colExcludeRanges,
                                              bool bDontCheckFormula) const {
  Procedure("ClearGroupRanges of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    for (const Record& record : ranges_->Records()) {
      if (!record->get_RangeExists() || record->get_Tag() != sTag) continue;
      at();
      if (Holds(colExcludeGroups, record->get_Group())) continue;
      at();
      if (Holds(colExcludeRanges, record->get_RangeName())) continue;
      at();
      ClearUnlessFormula(record->get_RangeName(), bDontCheckFormula);
    }
  });
}

void clsInterfaceRangeList::ClearAllRanges(bool bNotHeader, bool bNotSageCompany,
                                           bool bNotHeaderDetail) {
  Procedure("ClearAllRanges of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    SetIfRangesExist();
    for (const Record& record : ranges_->Records()) {
      const eRangeHeadDetailInd indicator = record->get_DetailIndicator();
      if (bNotHeader && indicator == hdiHeader) continue;
      if (bNotHeaderDetail && indicator == hdiHeaderDetail) continue;
      if (bNotSageCompany && record->get_IsSageCompany()) continue;
      if (!record->get_RangeExists()) continue;
      at();
      ClearUnlessFormula(record->get_RangeName(), doNotCheckIsFormula_);
    }
  });
}

void clsInterfaceRangeList::ClearDetailRanges() {
  Procedure("ClearDetailRanges of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    SetIfRangesExist();
    for (const Record& record : ranges_->Records()) {
      if (record->get_DetailIndicator() != hdiDetail || !record->get_RangeExists()) continue;
      at();
      ClearUnlessFormula(record->get_RangeName(), false);
    }
  });
}

}  // namespace rangewerks
