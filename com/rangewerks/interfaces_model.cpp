// The slots of the range model, in the order of their member tables.
#include <rangewerks.h>

#include "com/rangewerks/interfaces.h"

namespace rangewerks::com {

DualInterface InputRangeInterface() {
  using I = ::_clsExInputRange;
  return MakeDualInterface<
      I, &I::put_RangeHeading, &I::get_RangeHeading, &I::put_Value, &I::get_Value,
      &I::put_DataLength, &I::get_DataLength, &I::put_RangeDataType, &I::get_RangeDataType,
      &I::put_DetailIndicator, &I::get_DetailIndicator, &I::put_RangeName, &I::get_RangeName,
      &I::put_Description, &I::get_Description, &I::put_RangeExists, &I::get_RangeExists,
      &I::put_IsMandatory, &I::get_IsMandatory, &I::get_IsDownload, &I::put_IsDownload,
      &I::put_IsBrowseable, &I::get_IsBrowseable, &I::put_BrowseColumn, &I::put_Offset,
      &I::get_Offset, &I::get_BrowseColumn, &I::put_Group, &I::get_Group, &I::get_HeadDetailDesc,
      &I::get_DataTypeDesc, &I::get_DecimalPlaces, &I::put_DecimalPlaces, &I::put_IsSageCompany,
      &I::get_IsSageCompany, &I::get_GroupRange, &I::put_GroupRange, &I::get_IsValueFound,
      &I::put_IsValueFound, &I::get_BecomeHeader, &I::get_CanBeHeader, &I::put_CanBeHeader,
      &I::get_BlankValueIsFound, &I::put_BlankValueIsFound, &I::get_Tag, &I::put_Tag>(
      "clsExInputRange");
}

DualInterface InputRangeListInterface() {
  using I = ::_colExInputRangeList;
  return MakeDualInterface<I, &I::Add, &I::get_Item, &I::get_Count, &I::Remove, &I::get_NewEnum,
                           &I::ClearList, &I::Sort, &I::Append>("colExInputRangeList");
}

DualInterface GroupHeadingInterface() {
  using I = ::_clsRangeGroupHeading;
  return MakeDualInterface<I, &I::get_ParentGroup, &I::put_ParentGroup, &I::put_HeadingText,
                           &I::get_HeadingText, &I::put_HeadingKey, &I::get_HeadingKey>(
      "clsRangeGroupHeading");
}

DualInterface GroupHeadingsInterface() {
  using I = ::_colGroupHeadings;
  return MakeDualInterface<I, &I::ClearList, &I::Add, &I::get_Item, &I::get_Count, &I::Remove,
                           &I::get_NewEnum>("colGroupHeadings");
}

}  // namespace rangewerks::com
