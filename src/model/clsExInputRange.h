// One declared range: what the caller declared, what was found out about it on the current sheet,
// and one value in transit. A plain record; it knows no spreadsheet.
#pragma once

#include <cstdint>
#include <string>

#include "automation/member_table.h"
#include "model/enumerations.h"

namespace rangewerks {

/// No property fails or validates: an enumeration value out of range is stored as it is and has an
/// empty description text.
class clsExInputRange final : public automation::AutomationClass {
 public:
  using Variant = automation::Variant;

  const automation::MemberTable& Members() const override;

  void let_RangeHeading(const std::string& value) { rangeHeading_ = value; }
  const std::string& get_RangeHeading() const { return rangeHeading_; }
  void let_Value(const Variant& value) { value_ = value; }
  const Variant& get_Value() const { return value_; }
  void let_DataLength(std::int16_t value) { dataLength_ = value; }
  std::int16_t get_DataLength() const { return dataLength_; }
  void let_RangeDataType(eRangeDataType value) { rangeDataType_ = value; }
  eRangeDataType get_RangeDataType() const { return rangeDataType_; }
  void let_DetailIndicator(eRangeHeadDetailInd value) { detailIndicator_ = value; }
  eRangeHeadDetailInd get_DetailIndicator() const { return detailIndicator_; }
  void let_RangeName(const std::string& value) { rangeName_ = value; }
  const std::string& get_RangeName() const { return rangeName_; }
  void let_Description(const std::string& value) { description_ = value; }
  const std::string& get_Description() const { return description_; }
  void let_RangeExists(bool value) { rangeExists_ = value; }
  bool get_RangeExists() const { return rangeExists_; }
  void let_IsMandatory(bool value) { isMandatory_ = value; }
  bool get_IsMandatory() const { return isMandatory_; }
  bool get_IsDownload() const { return isDownload_; }
  void let_IsDownload(bool value) { isDownload_ = value; }
  void let_IsBrowseable(bool value) { isBrowseable_ = value; }
  bool get_IsBrowseable() const { return isBrowseable_; }
  void let_BrowseColumn(const std::string& value) { browseColumn_ = value; }
  void let_Offset(std::int16_t value) { offset_ = value; }
  std::int16_t get_Offset() const { return offset_; }
  /// The stored text as it stands, or RangeName when that text is blank.
  const std::string& get_BrowseColumn() const;
  void let_Group(const std::string& value) { group_ = value; }
  const std::string& get_Group() const { return group_; }
  /// "Header", "Detail", "Header/Detail" or empty.
  std::string get_HeadDetailDesc() const;
  /// "String", "Double", "Date", "Integer", "Yes/No" or empty.
  std::string get_DataTypeDesc() const;
  std::int16_t get_DecimalPlaces() const { return decimalPlaces_; }
  void let_DecimalPlaces(std::int16_t value) { decimalPlaces_ = value; }
  void let_IsSageCompany(bool value) { isSageCompany_ = value; }
  bool get_IsSageCompany() const { return isSageCompany_; }
  const std::string& get_GroupRange() const { return groupRange_; }
  void let_GroupRange(const std::string& value) { groupRange_ = value; }
  bool get_IsValueFound() const { return isValueFound_; }
  void let_IsValueFound(bool value) { isValueFound_ = value; }
  bool get_BecomeHeader() const { return becomeHeader_; }
  /// For the library alone: only locating the ranges on a sheet tells what acts as a header.
  void let_BecomeHeader(bool value) { becomeHeader_ = value; }
  bool get_CanBeHeader() const { return canBeHeader_; }
  void let_CanBeHeader(bool value) { canBeHeader_ = value; }
  bool get_BlankValueIsFound() const { return blankValueIsFound_; }
  void let_BlankValueIsFound(bool value) { blankValueIsFound_ = value; }
  const std::string& get_Tag() const { return tag_; }
  void let_Tag(const std::string& value) { tag_ = value; }

 private:
  std::string rangeName_;
  std::string description_;
  bool isMandatory_ = false;
  bool rangeExists_ = false;
  eRangeHeadDetailInd detailIndicator_ = hdiHeader;
  eRangeDataType rangeDataType_ = rdtString;
  std::int16_t dataLength_ = 0;  // characters; below 1 means no limit
  Variant value_;
  bool isBrowseable_ = false;
  std::string browseColumn_;
  std::int16_t offset_ = 0;
  std::string group_;
  std::string rangeHeading_;
  bool isDownload_ = false;
  std::int16_t decimalPlaces_ = 2;  // negative: any number of places
  bool isSageCompany_ = false;
  bool isValueFound_ = false;
  std::string groupRange_;
  bool canBeHeader_ = false;
  bool becomeHeader_ = false;
  bool blankValueIsFound_ = false;
  std::string tag_;
};

}  // namespace rangewerks
