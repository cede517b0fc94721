// Writing values into the cells of declared ranges.
#include <cmath>

#include "automation/conversions.h"
#include "automation/text.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

using automation::Locale;
using automation::Member;

namespace {

const Member kFields{"Fields"};
const Member kValue{"Value"};

constexpr const char* kPopulateRange = "PopulateRange of Class Module clsInterfaceRangeList Line#:";

}  // namespace

/// The frame of the writes: `write` is asked for the value once the cell is known to take one.
template <class Write>
void clsInterfaceRangeList::Populate(const char* literal, const std::string& sRangeName,
                                     std::int32_t lIndex, const Write& write) const {
  Procedure(literal, [&](Line& at) {
    at();
    const Record record = ranges_->Item(sRangeName);
    if (!record->get_RangeExists()) return;
    at();
    const std::int32_t index = record->get_BecomeHeader() ? 1 : lIndex;
    const excel::Range cell = GetRange(sRangeName).get_Item(index);
    at();
    if (!AllowPopulate(cell)) return;
    at();
    cell.let_Value(write());
  });
}

// Numbers and dates have always been reported under the name of the text write.
void clsInterfaceRangeList::PopulateDoubleRange(const std::string& sRangeName, double dValue,
                                                std::int32_t lIndex) const {
  Populate(kPopulateRange, sRangeName, lIndex, [&] { return Variant(dValue); });
}

void clsInterfaceRangeList::PopulateDateRange(const std::string& sRangeName, Date datValue,
                                              std::int32_t lIndex) const {
  Populate(kPopulateRange, sRangeName, lIndex, [&] {
    return datValue.serial == 0 ? Variant("") : Variant(Date{std::trunc(datValue.serial)});
  });
}

void clsInterfaceRangeList::PopulateRange(const std::string& sRangeName, const std::string& sValue,
                                          std::int32_t lIndex) const {
  Populate(kPopulateRange, sRangeName, lIndex, [&] {
    return stripSpacesOnDownload_ ? Variant(automation::TrimRight(sValue)) : Variant(sValue);
  });
}

void clsInterfaceRangeList::PopulateYNRange(const std::string& sRangeName, bool bVal,
                                            std::int32_t lIndex) const {
  Populate("PopulateYNRange of Class Module clsInterfaceRangeList Line#:", sRangeName, lIndex,
           [&] { return Variant(bVal ? "Y" : "N"); });
}

void clsInterfaceRangeList::PopulateRangeRs(const Object& rsUp, const std::string& sRangeName,
                                            const std::string& sFldName,
                                            std::int32_t lIndex) const {
  Populate("PopulateRangeRs of Class Module clsInterfaceRangeList Line#:", sRangeName, lIndex, [&] {
    const Locale& locale = Locale::Current();
    Variant value = rsUp.Get(kFields, {sFldName}).AsObject().Get(kValue);
    if (value.IsNull()) return Variant("");
    if (stripSpacesOnDownload_ && !IsNumeric(value, locale) && !IsDate(value, locale)) {
      return Variant(automation::Trim(ToString(value, locale)));
    }
    return value;
  });
}

bool clsInterfaceRangeList::AllowPopulate(const excel::Range& cell) const {
  return Procedure("AllowPopulate of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    if (leaveBlankOnPopulate_ &&
        !automation::IsBlank(ToString(cell.get_Value(), Locale::Current()))) {
      return false;
    }
    at();
    return !leaveFormulaOnPopulate_ || !cell.get_HasFormula();
  });
}

}  // namespace rangewerks
