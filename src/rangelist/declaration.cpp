// Declaring ranges on the list.
#include "model/ExcelRange.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

using automation::Error;
using automation::ErrorNumber;

clsInterfaceRangeList::Record clsInterfaceRangeList::Add(
    const std::string& RangeName, eRangeHeadDetailInd DetailIndicator, eRangeDataType RangeDataType,
    bool IsMandatory, bool RangeExists, const std::string& Description, std::int16_t DataLength,
    const Variant& Value, std::string& sKey, bool IsBrowseable, const std::string& BrowseColumn,
    const std::string& Group) {
  return Procedure("Add of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    Record record =
        ranges_->Add(RangeName, DetailIndicator, RangeDataType, IsMandatory, RangeExists,
                     Description, DataLength, Value, sKey, IsBrowseable, BrowseColumn, Group);
    record->let_Tag(defaultTag_);
    return record;
  });
}

clsInterfaceRangeList::Record clsInterfaceRangeList::Add(
    const std::string& RangeName, eRangeHeadDetailInd DetailIndicator, eRangeDataType RangeDataType,
    bool IsMandatory, const std::string& Description, std::int16_t DataLength) {
  std::string key;
  return Add(RangeName, DetailIndicator, RangeDataType, IsMandatory, false, Description, DataLength,
             std::int16_t{0}, key, false, {}, {});
}

clsInterfaceRangeList::Record clsInterfaceRangeList::AddCls(
    const std::shared_ptr<clsExInputRange>& oExRngInput) {
  if (!oExRngInput) throw Error(ErrorNumber::ObjectVariableNotSet);
  const clsExInputRange& given = *oExRngInput;
  std::string key = given.get_RangeName();
  Record record = Add(given.get_RangeName(), given.get_DetailIndicator(), given.get_RangeDataType(),
                      given.get_IsMandatory(), given.get_RangeExists(), given.get_Description(),
                      given.get_DataLength(), given.get_Value(), key, given.get_IsBrowseable(),
                      given.get_BrowseColumn(), given.get_Group());
  record->let_RangeHeading(given.get_RangeHeading());
  record->let_IsDownload(given.get_IsDownload());
  record->let_DecimalPlaces(given.get_DecimalPlaces());
  return record;
}

void clsInterfaceRangeList::AddInterface(const std::string& sRName, bool isMan,
                                         const std::string& sDetInd, eRangeDataType eDataType,
                                         std::int16_t iLen, const std::string& sDesc) {
  Procedure("AddInterface of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    ranges_->Add(sRName, ExcelRange::DetailIndicatorFromCode(sDetInd), eDataType, isMan, sDesc,
                 iLen);
  });
}

}  // namespace rangewerks
