#include "model/clsExInputRange.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/ExcelRange.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::CallKind;
using automation::Member;
using automation::MemberInfo;
using automation::Object;
using automation::Variant;

TEST(ClsExInputRange, ANewRecordHasTheDefaultsOfItsFields) {
  const clsExInputRange record;
  EXPECT_EQ(record.get_RangeName(), "");
  EXPECT_EQ(record.get_Description(), "");
  EXPECT_FALSE(record.get_IsMandatory());
  EXPECT_FALSE(record.get_RangeExists());
  EXPECT_EQ(record.get_DetailIndicator(), hdiHeader);
  EXPECT_EQ(record.get_RangeDataType(), rdtString);
  EXPECT_EQ(record.get_DataLength(), 0);
  EXPECT_TRUE(record.get_Value().IsEmpty());
  EXPECT_FALSE(record.get_IsBrowseable());
  EXPECT_EQ(record.get_BrowseColumn(), "");
  EXPECT_EQ(record.get_Offset(), 0);
  EXPECT_EQ(record.get_Group(), "");
  EXPECT_EQ(record.get_RangeHeading(), "");
  EXPECT_FALSE(record.get_IsDownload());
  EXPECT_FALSE(record.get_IsSageCompany());
  EXPECT_FALSE(record.get_IsValueFound());
  EXPECT_EQ(record.get_GroupRange(), "");
  EXPECT_FALSE(record.get_CanBeHeader());
  EXPECT_FALSE(record.get_BecomeHeader());
  EXPECT_FALSE(record.get_BlankValueIsFound());
  EXPECT_EQ(record.get_Tag(), "");
}

TEST(ClsExInputRange, ANewRecordHasTwoDecimalPlacesNotNone) {
  EXPECT_EQ(clsExInputRange().get_DecimalPlaces(), 2);
}

TEST(ClsExInputRange, ABrowseColumnOfThreeSpacesReadsBackAsTheRangeName) {
  clsExInputRange record;
  record.let_RangeName("nominal_code");
  record.let_BrowseColumn("   ");
  EXPECT_EQ(record.get_BrowseColumn(), "nominal_code");
}

TEST(ClsExInputRange, ABrowseColumnKeepsItsTrailingSpaces) {
  clsExInputRange record;
  record.let_RangeName("nominal_code");
  record.let_BrowseColumn("codes  ");
  EXPECT_EQ(record.get_BrowseColumn(), "codes  ");
}

TEST(ClsExInputRange, DataTypeDescTellsEveryTypeInWords) {
  const std::vector<std::pair<eRangeDataType, std::string>> table = {
      {rdtString, "String"},   {rdtDouble, "Double"}, {rdtDate, "Date"},
      {rdtInteger, "Integer"}, {rdtYesNo, "Yes/No"},
  };
  clsExInputRange record;
  for (const auto& [type, text] : table) {
    record.let_RangeDataType(type);
    EXPECT_EQ(record.get_DataTypeDesc(), text);
  }
}

TEST(ClsExInputRange, DataTypeDescOfAnUnknownTypeIsEmptyAndTheTypeIsKept) {
  clsExInputRange record;
  record.let_RangeDataType(static_cast<eRangeDataType>(9));
  EXPECT_EQ(record.get_DataTypeDesc(), "");
  EXPECT_EQ(static_cast<int>(record.get_RangeDataType()), 9);
}

TEST(ClsExInputRange, HeadDetailDescTellsEveryIndicatorInWords) {
  clsExInputRange record;
  EXPECT_EQ(record.get_HeadDetailDesc(), "Header");
  record.let_DetailIndicator(hdiDetail);
  EXPECT_EQ(record.get_HeadDetailDesc(), "Detail");
  record.let_DetailIndicator(hdiHeaderDetail);
  EXPECT_EQ(record.get_HeadDetailDesc(), "Header/Detail");
}

TEST(ClsExInputRange, HeadDetailDescOfNoneIsEmpty) {
  clsExInputRange record;
  record.let_DetailIndicator(hdiNone);
  EXPECT_EQ(record.get_HeadDetailDesc(), "");
}

TEST(ClsExInputRange, EnumerationsHaveTheirPublishedValues) {
  EXPECT_EQ(static_cast<int>(rdtString), 0);
  EXPECT_EQ(static_cast<int>(rdtDouble), 1);
  EXPECT_EQ(static_cast<int>(rdtDate), 2);
  EXPECT_EQ(static_cast<int>(rdtInteger), 3);
  EXPECT_EQ(static_cast<int>(rdtYesNo), 4);
  EXPECT_EQ(static_cast<int>(hdiHeader), 0);
  EXPECT_EQ(static_cast<int>(hdiDetail), 1);
  EXPECT_EQ(static_cast<int>(hdiHeaderDetail), 2);
  EXPECT_EQ(static_cast<int>(hdiNone), 3);
}

TEST(ClsExInputRange, AnswersByNameForEveryProperty) {
  const Object record(std::make_shared<clsExInputRange>());
  const std::vector<std::pair<const char*, Variant>> table = {
      {"RangeHeading", "Code"},
      {"Value", 1.5},
      {"DataLength", std::int16_t{8}},
      {"RangeDataType", static_cast<std::int32_t>(rdtDate)},
      {"DetailIndicator", static_cast<std::int32_t>(hdiDetail)},
      {"RangeName", "nominal_code"},
      {"Description", "Nominal"},
      {"RangeExists", true},
      {"IsMandatory", true},
      {"IsDownload", true},
      {"IsBrowseable", true},
      {"BrowseColumn", "codes"},
      {"Offset", std::int16_t{3}},
      {"Group", "G"},
      {"DecimalPlaces", std::int16_t{-1}},
      {"IsSageCompany", true},
      {"GroupRange", "master"},
      {"IsValueFound", true},
      {"CanBeHeader", true},
      {"BlankValueIsFound", true},
      {"Tag", "T"},
  };
  for (const auto& [name, value] : table) {
    record.Let(Member(name), value);
    EXPECT_EQ(record.Get(Member(name)), value) << name;
  }
  EXPECT_EQ(record.Get(Member("headdetaildesc")), Variant("Detail"));
  EXPECT_EQ(record.Get(Member("DataTypeDesc")), Variant("Date"));
  EXPECT_EQ(record.TypeName(), "clsExInputRange");
}

TEST(ClsExInputRange, BecomeHeaderAndTheDescriptionsCanNotBeWrittenByCallers) {
  const Object record(std::make_shared<clsExInputRange>());
  for (const char* name : {"BecomeHeader", "HeadDetailDesc", "DataTypeDesc"}) {
    EXPECT_EQ(ErrorOf([&] { record.Let(Member(name), Variant(true)); }).Number(), 438) << name;
  }
}

TEST(ClsExInputRange, MembersStandInTheOrderOfTheirSlots) {
  std::vector<std::string> slots;
  for (const MemberInfo& entry : clsExInputRange().Members().Entries()) {
    slots.push_back(std::string(KindName(entry.kind)) + " " + entry.name.Name());
  }
  const std::vector<std::string> expected = {
      "let RangeHeading",
      "get RangeHeading",
      "let Value",
      "get Value",
      "let DataLength",
      "get DataLength",
      "let RangeDataType",
      "get RangeDataType",
      "let DetailIndicator",
      "get DetailIndicator",
      "let RangeName",
      "get RangeName",
      "let Description",
      "get Description",
      "let RangeExists",
      "get RangeExists",
      "let IsMandatory",
      "get IsMandatory",
      "get IsDownload",
      "let IsDownload",
      "let IsBrowseable",
      "get IsBrowseable",
      "let BrowseColumn",
      "let Offset",
      "get Offset",
      "get BrowseColumn",
      "let Group",
      "get Group",
      "get HeadDetailDesc",
      "get DataTypeDesc",
      "get DecimalPlaces",
      "let DecimalPlaces",
      "let IsSageCompany",
      "get IsSageCompany",
      "get GroupRange",
      "let GroupRange",
      "get IsValueFound",
      "let IsValueFound",
      "get BecomeHeader",
      "get CanBeHeader",
      "let CanBeHeader",
      "get BlankValueIsFound",
      "let BlankValueIsFound",
      "get Tag",
      "let Tag",
  };
  EXPECT_EQ(slots, expected);
}

TEST(DetailIndicatorFromCode, KnowsTheThreeCodes) {
  EXPECT_EQ(ExcelRange::DetailIndicatorFromCode("H"), hdiHeader);
  EXPECT_EQ(ExcelRange::DetailIndicatorFromCode("D"), hdiDetail);
  EXPECT_EQ(ExcelRange::DetailIndicatorFromCode("H/D"), hdiHeaderDetail);
}

TEST(DetailIndicatorFromCode, LowerCaseCodesGiveHeader) {
  EXPECT_EQ(ExcelRange::DetailIndicatorFromCode("h/d"), hdiHeader);
  EXPECT_EQ(ExcelRange::DetailIndicatorFromCode("d"), hdiHeader);
}

TEST(DetailIndicatorFromCode, AnyOtherTextGivesHeader) {
  for (const char* code : {"", "X", "D ", " D", "D/H"}) {
    EXPECT_EQ(ExcelRange::DetailIndicatorFromCode(code), hdiHeader) << code;
  }
}

}  // namespace
}  // namespace rangewerks::tests
