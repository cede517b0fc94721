#include "model/clsExInputRange.h"

#include "automation/text.h"

namespace rangewerks {

using automation::MemberTable;

const std::string& clsExInputRange::get_BrowseColumn() const {
  return automation::IsBlank(browseColumn_) ? rangeName_ : browseColumn_;
}

std::string clsExInputRange::get_HeadDetailDesc() const {
  switch (detailIndicator_) {
    case hdiHeader:
      return "Header";
    case hdiDetail:
      return "Detail";
    case hdiHeaderDetail:
      return "Header/Detail";
    case hdiNone:
      break;
  }
  return {};
}

std::string clsExInputRange::get_DataTypeDesc() const {
  switch (rangeDataType_) {
    case rdtString:
      return "String";
    case rdtDouble:
      return "Double";
    case rdtDate:
      return "Date";
    case rdtInteger:
      return "Integer";
    case rdtYesNo:
      return "Yes/No";
  }
  return {};
}

const MemberTable& clsExInputRange::Members() const {
  using C = clsExInputRange;
  static const char* const kHeading = "Text of the column heading put above the range.";
  static const char* const kValue = "The value in transit between the sheet and the caller.";
  static const char* const kLength =
      "Greatest number of characters that a text read returns; below 1 there is no limit.";
  static const char* const kType = "The type of the values that the range holds.";
  static const char* const kIndicator =
      "Whether the range is a header, a detail column, or either.";
  static const char* const kName = "The declared name, without sheet or list prefix.";
  static const char* const kDescription = "Words for a person, shown in messages about the range.";
  static const char* const kExists = "Whether the range was found on the current sheet.";
  static const char* const kMandatory = "Whether the sheet must define the range.";
  static const char* const kDownload =
      "Whether the range is filled from the accounting side and never read as input.";
  static const char* const kBrowseable = "Whether the right-click browse serves the range.";
  static const char* const kBrowse = "Name of the browse column; the range's own name when blank.";
  static const char* const kOffset = "Held for the caller.";
  static const char* const kGroup = "Key of the group heading under which the range is shown.";
  static const char* const kPlaces =
      "Decimal places allowed in a number; a negative value allows any.";
  static const char* const kCompany = "Whether the range holds the Sage company.";
  static const char* const kGroupRange =
      "Name of the range whose number of rows this one must share.";
  static const char* const kFound = "Whether the last bulk read found a value.";
  static const char* const kCanBeHeader =
      "Whether the range may act as a header when it has one row on the sheet.";
  static const char* const kBlankFound = "Whether a blank cell counts as found.";
  static const char* const kTag = "Free label.";
  // A property keeps one identifier for its read and its write; the entries stand in slot order.
  static const MemberTable table =
      MemberTable::For<C>("clsExInputRange")
          .Let(1, "RangeHeading", &C::let_RangeHeading, kHeading)
          .Get(1, "RangeHeading", &C::get_RangeHeading, kHeading)
          .Let(2, "Value", &C::let_Value, kValue)
          .Get(2, "Value", &C::get_Value, kValue)
          .Let(3, "DataLength", &C::let_DataLength, kLength)
          .Get(3, "DataLength", &C::get_DataLength, kLength)
          .Let(4, "RangeDataType", &C::let_RangeDataType, kType)
          .Get(4, "RangeDataType", &C::get_RangeDataType, kType)
          .Let(5, "DetailIndicator", &C::let_DetailIndicator, kIndicator)
          .Get(5, "DetailIndicator", &C::get_DetailIndicator, kIndicator)
          .Let(6, "RangeName", &C::let_RangeName, kName)
          .Get(6, "RangeName", &C::get_RangeName, kName)
          .Let(7, "Description", &C::let_Description, kDescription)
          .Get(7, "Description", &C::get_Description, kDescription)
          .Let(8, "RangeExists", &C::let_RangeExists, kExists)
          .Get(8, "RangeExists", &C::get_RangeExists, kExists)
          .Let(9, "IsMandatory", &C::let_IsMandatory, kMandatory)
          .Get(9, "IsMandatory", &C::get_IsMandatory, kMandatory)
          .Get(10, "IsDownload", &C::get_IsDownload, kDownload)
          .Let(10, "IsDownload", &C::let_IsDownload, kDownload)
          .Let(11, "IsBrowseable", &C::let_IsBrowseable, kBrowseable)
          .Get(11, "IsBrowseable", &C::get_IsBrowseable, kBrowseable)
          .Let(12, "BrowseColumn", &C::let_BrowseColumn, kBrowse)
          .Let(13, "Offset", &C::let_Offset, kOffset)
          .Get(13, "Offset", &C::get_Offset, kOffset)
          .Get(12, "BrowseColumn", &C::get_BrowseColumn, kBrowse)
          .Let(14, "Group", &C::let_Group, kGroup)
          .Get(14, "Group", &C::get_Group, kGroup)
          .Get(15, "HeadDetailDesc", &C::get_HeadDetailDesc, "The indicator in words.")
          .Get(16, "DataTypeDesc", &C::get_DataTypeDesc, "The data type in words.")
          .Get(17, "DecimalPlaces", &C::get_DecimalPlaces, kPlaces)
          .Let(17, "DecimalPlaces", &C::let_DecimalPlaces, kPlaces)
          .Let(18, "IsSageCompany", &C::let_IsSageCompany, kCompany)
          .Get(18, "IsSageCompany", &C::get_IsSageCompany, kCompany)
          .Get(19, "GroupRange", &C::get_GroupRange, kGroupRange)
          .Let(19, "GroupRange", &C::let_GroupRange, kGroupRange)
          .Get(20, "IsValueFound", &C::get_IsValueFound, kFound)
          .Let(20, "IsValueFound", &C::let_IsValueFound, kFound)
          .Get(21, "BecomeHeader", &C::get_BecomeHeader,
               "Whether the range acts as a header on the current sheet.")
          .Get(22, "CanBeHeader", &C::get_CanBeHeader, kCanBeHeader)
          .Let(22, "CanBeHeader", &C::let_CanBeHeader, kCanBeHeader)
          .Get(23, "BlankValueIsFound", &C::get_BlankValueIsFound, kBlankFound)
          .Let(23, "BlankValueIsFound", &C::let_BlankValueIsFound, kBlankFound)
          .Get(24, "Tag", &C::get_Tag, kTag)
          .Let(24, "Tag", &C::let_Tag, kTag);
  return table;
}

}  // namespace rangewerks
