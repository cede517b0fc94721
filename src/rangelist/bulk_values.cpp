// Moving a whole line of ranges between the sheet and the records' values.
#include "automation/conversions.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

using automation::Locale;

namespace {

/// The text of a number as the platform's Str writes it: always with a decimal point, and with a
/// blank in the place of the sign when it isn't negative.
std::string SignedText(const automation::Variant& value) {
  const double number = ToDouble(value, Locale::Current());
  const std::string text = ToString(number, Locale());
  return number < 0 ? text : " " + text;
}

}  // namespace

template <class T>
void clsInterfaceRangeList::ReadValue(bool (clsInterfaceRangeList::*read)(const std::string&, T&,
                                                                          std::int32_t),
                                      std::int32_t lIndex, clsExInputRange& record) {
  T value{};
  record.let_IsValueFound((this->*read)(record.get_RangeName(), value, lIndex));
  record.let_Value(value);
}

void clsInterfaceRangeList::GetValues(std::int32_t lIndex, eRangeHeadDetailInd HeadDetailInd) {
  using C = clsInterfaceRangeList;
  Procedure("GetValues of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    for (const Record& record : ranges_->Records()) {
      if (record->get_DetailIndicator() != HeadDetailInd || record->get_IsDownload()) continue;
      at();
      switch (record->get_RangeDataType()) {
        case rdtString:
          ReadValue(&C::GetStrRange, lIndex, *record);
          break;
        case rdtDouble:
          ReadValue(&C::GetValRange, lIndex, *record);
          break;
        case rdtDate:
          ReadValue(&C::GetDateRange, lIndex, *record);
          break;
        case rdtInteger:
          ReadValue(&C::GetIntRange, lIndex, *record);
          break;
        case rdtYesNo:
          ReadValue(&C::GetYNRange, lIndex, *record);
          break;
      }
    }
  });
}

/// A failure goes out as it is: no line of this member is added to it.
void clsInterfaceRangeList::PutValues(std::int32_t lIndex,
                                      eRangeHeadDetailInd HeadDetailInd) const {
  const Locale& locale = Locale::Current();
  for (const Record& record : ranges_->Records()) {
    if (record->get_DetailIndicator() != HeadDetailInd) continue;
    const std::string& name = record->get_RangeName();
    const Variant& value = record->get_Value();
    switch (record->get_RangeDataType()) {
      case rdtString:
        PopulateRange(name, ToString(value, locale), lIndex);
        break;
      case rdtDouble:
        PopulateDoubleRange(name, ToDouble(value, locale), lIndex);
        break;
      case rdtDate:
        PopulateDateRange(name, ToDate(value, locale), lIndex);
        break;
      case rdtInteger:
        PopulateRange(name, SignedText(value), lIndex);
        break;
      case rdtYesNo:
        PopulateYNRange(name, ToBoolean(value, locale), lIndex);
        break;
    }
  }
}

}  // namespace rangewerks
