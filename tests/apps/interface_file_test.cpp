#include "apps/rangewerks/interface_file.h"

#include <gtest/gtest.h>

#include <string>

#include "support/failure_of.h"

namespace rangewerks::apps {
namespace {

using tests::FailureOf;

/// What a file with that text is refused with.
std::string Refusal(const std::string& text) {
  return FailureOf([&] { ParseInterface(text); });
}

/// What a file with one range is refused with; `fields` follow a good beginning.
std::string RangeRefusal(const std::string& fields) {
  return Refusal(R"({"ranges": [{"RangeName": "amount", "DetailIndicator": "D", )"
                 R"("RangeDataType": "rdtDouble")" +
                 fields + "}]}");
}

TEST(InterfaceFile, DeclaresARangeWithEveryField) {
  const auto list = ParseInterface(R"({"ranges": [{
    "RangeName": "amount", "DetailIndicator": "hdiHeaderDetail", "RangeDataType": "rdtDouble",
    "Description": "Net amount", "IsMandatory": true, "DataLength": 12, "IsBrowseable": true,
    "BrowseColumn": "accounts", "Group": "money", "RangeHeading": "Net", "GroupRange": "code",
    "Tag": "own", "DecimalPlaces": -1, "Offset": 3, "IsDownload": true, "IsSageCompany": true,
    "CanBeHeader": true, "BlankValueIsFound": true}]})");
  ASSERT_EQ(list->Count(), 1);
  const auto record = list->Item("amount");
  EXPECT_EQ(record->get_RangeName(), "amount");
  EXPECT_EQ(record->get_DetailIndicator(), hdiHeaderDetail);
  EXPECT_EQ(record->get_RangeDataType(), rdtDouble);
  EXPECT_EQ(record->get_Description(), "Net amount");
  EXPECT_TRUE(record->get_IsMandatory());
  EXPECT_EQ(record->get_DataLength(), 12);
  EXPECT_TRUE(record->get_IsBrowseable());
  EXPECT_EQ(record->get_BrowseColumn(), "accounts");
  EXPECT_EQ(record->get_Group(), "money");
  EXPECT_EQ(record->get_RangeHeading(), "Net");
  EXPECT_EQ(record->get_GroupRange(), "code");
  EXPECT_EQ(record->get_Tag(), "own");
  EXPECT_EQ(record->get_DecimalPlaces(), -1);
  EXPECT_EQ(record->get_Offset(), 3);
  EXPECT_TRUE(record->get_IsDownload());
  EXPECT_TRUE(record->get_IsSageCompany());
  EXPECT_TRUE(record->get_CanBeHeader());
  EXPECT_TRUE(record->get_BlankValueIsFound());
}

TEST(InterfaceFile, FieldsLeftOutHaveTheDefaultsOfARecord) {
  const auto list = ParseInterface(
      R"({"ranges": [{"RangeName": "a", "DetailIndicator": "H", "RangeDataType": "rdtString"}]})");
  const auto record = list->Item("a");
  EXPECT_EQ(record->get_Description(), "");
  EXPECT_FALSE(record->get_IsMandatory());
  EXPECT_EQ(record->get_DataLength(), 0);
  EXPECT_EQ(record->get_DecimalPlaces(), 2);
  EXPECT_EQ(record->get_Tag(), "");
  EXPECT_FALSE(record->get_CanBeHeader());
  EXPECT_FALSE(list->get_SheetRangeNames());
  EXPECT_FALSE(list->get_AddNumberValidation());
  EXPECT_FALSE(list->get_BlankRangeIsThere());
  EXPECT_FALSE(list->get_ValidateDecimalPlaces());
  EXPECT_EQ(list->get_RangePrefix(), "");
}

TEST(InterfaceFile, SetsTheSwitchesOfTheList) {
  const auto list = ParseInterface(R"({
    "SheetRangeNames": true, "RangePrefix": "SO_", "AddNumberValidation": true,
    "BlankRangeIsThere": true,
    "ValidateDecimalPlaces": true, "DefaultTag": "T1",
    "ranges": [{"RangeName": "a", "DetailIndicator": "H", "RangeDataType": "rdtString"},
               {"RangeName": "b", "DetailIndicator": "H", "RangeDataType": "rdtString",
                "Tag": ""}]})");
  EXPECT_TRUE(list->get_SheetRangeNames());
  EXPECT_TRUE(list->get_UsingSheetRangeNames());
  EXPECT_TRUE(list->get_AddNumberValidation());
  EXPECT_EQ(list->get_RangePrefix(), "SO_");
  EXPECT_TRUE(list->get_BlankRangeIsThere());
  EXPECT_TRUE(list->get_ValidateDecimalPlaces());
  EXPECT_EQ(list->Item("a")->get_Tag(), "T1");
  EXPECT_EQ(list->Item("b")->get_Tag(), "");
}

TEST(InterfaceFile, ReadsGroupHeadingsInTheirOrder) {
  const auto list = ParseInterface(R"({
    "GroupHeadings": [{"HeadingKey": "top", "HeadingText": "All"},
                      {"HeadingKey": "money", "HeadingText": "Amounts", "ParentGroup": "top"}],
    "ranges": [{"RangeName": "a", "DetailIndicator": "H", "RangeDataType": "rdtString"}]})");
  const auto headings = list->get_GroupHeadings();
  ASSERT_EQ(headings->Count(), 2);
  EXPECT_EQ(headings->Item(1)->get_HeadingText(), "All");
  EXPECT_EQ(headings->Item("money")->get_ParentGroup(), "top");
}

TEST(InterfaceFile, TakesIndicatorsByNameAndByShortCode) {
  const auto indicatorOf = [](const std::string& word) {
    return ParseInterface(R"({"ranges": [{"RangeName": "a", "RangeDataType": "rdtString", )"
                          R"("DetailIndicator": ")" +
                          word + "\"}]}")
        ->Item("a")
        ->get_DetailIndicator();
  };
  EXPECT_EQ(indicatorOf("hdiHeader"), hdiHeader);
  EXPECT_EQ(indicatorOf("hdiDetail"), hdiDetail);
  EXPECT_EQ(indicatorOf("hdiHeaderDetail"), hdiHeaderDetail);
  EXPECT_EQ(indicatorOf("hdiNone"), hdiNone);
  EXPECT_EQ(indicatorOf("H"), hdiHeader);
  EXPECT_EQ(indicatorOf("D"), hdiDetail);
  EXPECT_EQ(indicatorOf("H/D"), hdiHeaderDetail);
}

TEST(InterfaceFile, TakesEveryDataTypeByName) {
  const auto typeOf = [](const std::string& word) {
    return ParseInterface(R"({"ranges": [{"RangeName": "a", "DetailIndicator": "H", )"
                          R"("RangeDataType": ")" +
                          word + "\"}]}")
        ->Item("a")
        ->get_RangeDataType();
  };
  EXPECT_EQ(typeOf("rdtString"), rdtString);
  EXPECT_EQ(typeOf("rdtDouble"), rdtDouble);
  EXPECT_EQ(typeOf("rdtDate"), rdtDate);
  EXPECT_EQ(typeOf("rdtInteger"), rdtInteger);
  EXPECT_EQ(typeOf("rdtYesNo"), rdtYesNo);
}

TEST(InterfaceFile, AFaultOfSyntaxIsToldWithLineAndColumn) {
  EXPECT_EQ(Refusal("{\n  \"ranges\": [\n    {\"RangeName\": \"a\",}\n  ]\n}"),
            "line 3, column 23: syntax error while parsing object key - unexpected '}'; expected "
            "string literal");
  EXPECT_EQ(Refusal(""),
            "line 1, column 1: syntax error while parsing value - unexpected end of input; "
            "expected '[', '{', or a literal");
}

TEST(InterfaceFile, ColumnsCountCharacters) {
  EXPECT_TRUE(Refusal("{\"é€\": ]").starts_with("line 1, column 8: syntax error"));
}

TEST(InterfaceFile, AFieldThatStandsTwiceIsRefused) {
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "a"}, {"Tag": "x", "Tag": "y"}]})"),
            "/ranges/1/Tag: this field stands here a second time; leave one of the two out");
}

TEST(InterfaceFile, AWrongTypeWordIsRefusedWithTheOneThatMayBeMeant) {
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "a", "DetailIndicator": "H",
                        "RangeDataType": "rdtDuoble"}]})"),
            "/ranges/0/RangeDataType (range a): found \"rdtDuoble\", expected rdtString, "
            "rdtDouble, rdtDate, rdtInteger or rdtYesNo; did you mean rdtDouble?");
}

TEST(InterfaceFile, AWrongIndicatorIsRefused) {
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "a", "DetailIndicator": "h/d",
                        "RangeDataType": "rdtDate"}]})"),
            "/ranges/0/DetailIndicator (range a): found \"h/d\", expected hdiHeader, hdiDetail, "
            "hdiHeaderDetail, hdiNone, H, D or H/D; did you mean H/D?");
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "a", "DetailIndicator": "",
                        "RangeDataType": "rdtDate"}]})"),
            "/ranges/0/DetailIndicator (range a): found \"\", expected hdiHeader, hdiDetail, "
            "hdiHeaderDetail, hdiNone, H, D or H/D");
}

TEST(InterfaceFile, ARangeNameUsedTwiceIsRefusedWithTheFirstPlace) {
  EXPECT_EQ(Refusal(R"({"ranges": [
              {"RangeName": "amount", "DetailIndicator": "D", "RangeDataType": "rdtDouble"},
              {"RangeName": "Amount", "DetailIndicator": "D", "RangeDataType": "rdtDouble"}]})"),
            "/ranges/1/RangeName (range Amount): \"Amount\" stands already at /ranges/0/RangeName "
            "as \"amount\"; a name may be used once, whatever the case of its letters");
}

TEST(InterfaceFile, AHeadingKeyUsedTwiceIsRefused) {
  EXPECT_EQ(Refusal(R"({"GroupHeadings": [{"HeadingKey": "k"}, {"HeadingKey": "k"}],
                        "ranges": []})"),
            "/GroupHeadings/1/HeadingKey: \"k\" stands already at /GroupHeadings/0/HeadingKey; a "
            "name may be used once, whatever the case of its letters");
}

TEST(InterfaceFile, AnUnknownFieldIsRefusedWithTheNearestKnownOne) {
  EXPECT_EQ(RangeRefusal(R"(, "Mandatory": true)"),
            "/ranges/0/Mandatory (range amount): there is no field of this name; did you mean "
            "IsMandatory?");
  EXPECT_EQ(Refusal(R"({"Ranges": []})"),
            "/Ranges: there is no field of this name; did you mean ranges?");
  EXPECT_EQ(Refusal("{}"), "/ranges: the field is missing, expected a list, […]");
  EXPECT_EQ(Refusal(R"({"ranges": [], "colour": 1})"), "/colour: there is no field of this name");
}

TEST(InterfaceFile, WhatOnlyTheSheetTellsCannotBeDeclared) {
  EXPECT_EQ(RangeRefusal(R"(, "BecomeHeader": true)"),
            "/ranges/0/BecomeHeader (range amount): this is found out on the sheet and can't be "
            "declared; leave it out");
}

TEST(InterfaceFile, AFieldOfAnotherKindIsRefused) {
  EXPECT_EQ(RangeRefusal(R"(, "IsMandatory": "yes")"),
            "/ranges/0/IsMandatory (range amount): found \"yes\", expected true or false");
  EXPECT_EQ(RangeRefusal(R"(, "Description": 5)"),
            "/ranges/0/Description (range amount): found 5, expected a text in quotes");
  EXPECT_EQ(RangeRefusal(R"(, "Description": null)"),
            "/ranges/0/Description (range amount): found null, expected a text in quotes");
  EXPECT_EQ(Refusal(R"({"ranges": {}})"), "/ranges: found an object, expected a list, […]");
  EXPECT_EQ(Refusal(R"({"ranges": ["a"]})"), "/ranges/0: found \"a\", expected an object, {…}");
  EXPECT_EQ(Refusal("[]"), "the whole file: found a list, expected an object, {…}");
}

TEST(InterfaceFile, ANumberOutsideItsRangeIsRefused) {
  for (const char* number : {"32768", "-32769", "1.5", "12.0", "1e3", "99999999999999999999"}) {
    const std::string words = RangeRefusal(std::string(R"(, "DataLength": )") + number);
    EXPECT_TRUE(words.starts_with("/ranges/0/DataLength (range amount): found ")) << words;
    EXPECT_TRUE(words.ends_with(", expected a whole number from -32768 to 32767")) << words;
  }
}

TEST(InterfaceFile, ABlankRangeNameIsRefused) {
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "  "}]})"),
            "/ranges/0/RangeName: the text is blank");
}

TEST(InterfaceFile, ARangeWithoutItsThreeFirstFieldsIsRefused) {
  EXPECT_EQ(Refusal(R"({"ranges": [{}]})"),
            "/ranges/0/RangeName: the field is missing, expected a text in quotes");
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "a", "RangeDataType": "rdtDate"}]})"),
            "/ranges/0/DetailIndicator (range a): the field is missing, expected hdiHeader, "
            "hdiDetail, hdiHeaderDetail, hdiNone, H, D or H/D");
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "a", "DetailIndicator": "H"}]})"),
            "/ranges/0/RangeDataType (range a): the field is missing, expected rdtString, "
            "rdtDouble, rdtDate, rdtInteger or rdtYesNo");
}

TEST(InterfaceFile, AFileWithoutRangesIsRefused) {
  EXPECT_EQ(Refusal(R"({"ranges": []})"), "/ranges: the list is empty; declare at least one range");
}

TEST(InterfaceFile, AMissingFileIsToldWithItsPath) {
  EXPECT_EQ(FailureOf([] { ReadInterfaceFile("no/such.json"); }),
            "no/such.json: can't open the interface file: No such file or directory");
  EXPECT_EQ(FailureOf([] { ReadInterfaceFile("/"); }),
            "/: this is a folder; give the interface file itself");
}

}  // namespace
}  // namespace rangewerks::apps
