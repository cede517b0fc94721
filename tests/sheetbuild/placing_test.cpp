// Making selected cells a declared range.
#include <gmock/gmock.h>

#include "sheetbuild/placing_fixture.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr auto kApplicationError = static_cast<std::int32_t>(0x80040000U);

class Placing : public PlacingFixture {};

// --- shape --------------------------------------------------------------------------------------

TEST_F(Placing, ReturnsTheDeclaredRangeWhichThenExists) {
  const Record declared = Order("Ref");
  EXPECT_EQ(Place("B2:B5"), declared);
  EXPECT_TRUE(declared->get_RangeExists());
  EXPECT_EQ(RefersTo("Ref"), "=Sheet1!$B$2:$B$5");
}

TEST_F(Placing, TwoColumnsFailEvenWithRowsToAddAndANameThatIsntOnTheList) {
  properties->let_RangeName("Unknown");
  properties->let_RowsToAdd(50);
  const Error error = FailureOfPlacing("A1:B3");
  EXPECT_EQ(error.Number(), kApplicationError);
  EXPECT_EQ(error.Description(), "Only one column should be selected");
  EXPECT_THAT(
      error.Source(),
      MatchesRegex("Line No.: [0-9]+ AddRangeToSpreadsheet of Class Module clsInterfaceRangeList "
                   "Line#:[0-9]+"));
}

TEST_F(Placing, ANameThatIsntOnTheListFails) {
  properties->let_RangeName("Unknown");
  EXPECT_EQ(FailureOfPlacing("A1:A3").Number(), 5);
  EXPECT_FALSE(HasName("Unknown"));
}

TEST_F(Placing, ADetailRangeTakesRowsToAddFromTheFirstSelectedCell) {
  Order("Ref");
  properties->let_RowsToAdd(50);
  Place("A3:A5");
  EXPECT_EQ(RefersTo("Ref"), "=Sheet1!$A$3:$A$52");
  EXPECT_EQ(selection.get_Address(), "$A$3:$A$52");  // the caller's reference follows
}

TEST_F(Placing, RowsToAddShortensASelectionToo) {
  Order("Ref");
  properties->let_RowsToAdd(2);
  Place("A3:A9");
  EXPECT_EQ(RefersTo("Ref"), "=Sheet1!$A$3:$A$4");
}

TEST_F(Placing, WithoutRowsToAddTheSelectionIsTheRange) {
  Order("Ref");
  properties->let_RowsToAdd(0);
  Place("A3:A5");
  EXPECT_EQ(RefersTo("Ref"), "=Sheet1!$A$3:$A$5");
}

TEST_F(Placing, AHeaderStaysOneRowWhateverRowsToAddSays) {
  Order("Ref", hdiHeader);
  properties->let_RowsToAdd(50);
  Place("B2");
  EXPECT_EQ(RefersTo("Ref"), "=Sheet1!$B$2");
}

TEST_F(Placing, AHeaderOnTwoRowsFailsBeforeAnythingIsNamed) {
  Order("Ref", hdiHeader);
  properties->let_RowsToAdd(1);
  const Error error = FailureOfPlacing("B2:B3");
  EXPECT_EQ(error.Number(), kApplicationError);
  EXPECT_EQ(error.Description(), "Only one row should be selected for header type ranges");
  EXPECT_FALSE(HasName("Ref"));
}

TEST_F(Placing, ARangeThatIsNeitherHeaderNorDetailMayHaveSeveralRows) {
  Order("Ref", hdiNone);
  Place("B2:B3");
  EXPECT_EQ(RefersTo("Ref"), "=Sheet1!$B$2:$B$3");
}

TEST_F(Placing, UsesTheWorkbookNameOfTheSchemeInForce) {
  list->let_SheetRangeNames(true);
  list->let_RangePrefix("p_");
  Order("Ref");
  Place("A1:A3");
  EXPECT_TRUE(HasName("Sheet1__p_Ref"));
}

TEST_F(Placing, WithoutPropertiesItFails) {
  selection = Cells("A1");
  EXPECT_EQ(ErrorOf([&] { list->AddRangeToSpreadsheet(selection, nullptr); }).Number(), 91);
}

// --- number format ------------------------------------------------------------------------------

struct FormatCase {
  eRangeDataType type;
  std::int16_t decimals;
  std::string format;
  std::int32_t alignment;
};

class NumberFormats : public PlacingFixture, public testing::WithParamInterface<FormatCase> {};

TEST_P(NumberFormats, FollowTheDataType) {
  const FormatCase& expected = GetParam();
  Order("Ref", hdiDetail, expected.type)->let_DecimalPlaces(expected.decimals);
  properties->let_AddFormat(true);
  EXPECT_THAT(CallsOn("Range.NumberFormat", "A1:A3"),
              ElementsAre("Range.NumberFormat let \"" + expected.format + "\""));
  EXPECT_EQ(FormatOf("A1", "HorizontalAlignment"), Variant(expected.alignment));
}

INSTANTIATE_TEST_SUITE_P(Types, NumberFormats,
                         testing::Values(FormatCase{rdtString, 0, "@", -4131},
                                         FormatCase{rdtDouble, 0, "0;_ ;-0", -4152},
                                         FormatCase{rdtDouble, 2, "0.00_ ;-0.00", -4152},
                                         FormatCase{rdtDouble, 5, "0.00000_ ;-0.00000", -4152},
                                         FormatCase{rdtDate, 0, "mm/dd/yyyy", -4131},
                                         FormatCase{rdtInteger, 0, "0", -4152}));

TEST_F(Placing, AYesOrNoKeepsTheFormatOfTheCells) {
  Order("Ref", hdiDetail, rdtYesNo);
  properties->let_AddFormat(true);
  EXPECT_THAT(CallsOn("Range.NumberFormat", "A1:A3"), IsEmpty());
}

TEST_F(Placing, WithoutAddFormatNoFormatIsTouched) {
  Order("Ref");
  EXPECT_THAT(CallsOn("Range.NumberFormat", "A1:A3"), IsEmpty());
}

TEST_F(Placing, DatesFollowTheHostsOrder) {
  host.SetInternational(excel::xlDateOrder, 1);
  Order("Day", hdiDetail, rdtDate);
  properties->let_AddFormat(true);
  EXPECT_THAT(CallsOn("Range.NumberFormat", "A1:A3"),
              ElementsAre("Range.NumberFormat let \"dd/mm/yyyy\""));
}

TEST_F(Placing, AnUnknownDateOrderGivesNoFormatAndTwoBlanksInTheMessage) {
  host.SetInternational(excel::xlDateOrder, 3);
  Order("Day", hdiDetail, rdtDate, 0, "Posting day");
  properties->let_AddFormat(true);
  properties->let_AddToolTips(true);
  EXPECT_THAT(CallsOn("Range.NumberFormat", "A1:A3"), ElementsAre("Range.NumberFormat let \"\""));
  EXPECT_EQ(TextOf(ValidationOf("A1"), "InputMessage"), "Posting day\nEnter a date in  format");
}

// --- validation ---------------------------------------------------------------------------------

class Validating : public PlacingFixture {
 protected:
  Validating() {
    properties->let_AddValidation(true);
    properties->let_AddToolTips(true);
  }
};

TEST_F(Validating, ATextIsLimitedToItsLengthAndExplained) {
  Order("Ref", hdiDetail, rdtString, 30, "Reference");
  EXPECT_THAT(CallsOn("Validation", "A1:A3"),
              ElementsAre("Validation.Add call 6, 1, 8, 30",
                          "Validation.ErrorMessage let \"Ref cannot have more than 30\"",
                          "Validation.ErrorTitle let \"Input data error\"",
                          "Validation.InputTitle let \"Ref\"",
                          "Validation.InputMessage let \"Reference\nEnter up to 30 characters\""));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Validating, NumbersAreRestrictedWhereTheListSaysSo) {
  list->let_AddNumberValidation(true);
  Order("Net", hdiDetail, rdtDouble);
  EXPECT_THAT(CallsOn("Validation", "A1:A3"),
              ElementsAre("Validation.Add call 2, 1, 5, \"-9999999999\"",
                          "Validation.ErrorMessage let \"Net can only have numbers entered\"",
                          "Validation.ErrorTitle let \"Input data error\"",
                          "Validation.InputTitle let \"Net\"",
                          "Validation.InputMessage let \"\nEnter a number\""));
}

TEST_F(Validating, IntegersAreRestrictedWhereTheListSaysSo) {
  list->let_AddNumberValidation(true);
  Order("Qty", hdiDetail, rdtInteger);
  EXPECT_THAT(CallsOn("Validation", "A1:A3"),
              ElementsAre("Validation.Add call 1, 1, 5, \"-9999999999\"",
                          "Validation.ErrorMessage let \"Qty can only have integers entered\"",
                          "Validation.ErrorTitle let \"Input data error\"",
                          "Validation.InputTitle let \"Qty\"",
                          "Validation.InputMessage let \"\nEnter an integer\""));
}

TEST_F(Validating, WithoutNumberValidationANumberGetsItsMessageOnly) {
  Order("Net", hdiDetail, rdtDouble, 0, "Net amount");
  EXPECT_THAT(CallsOn("Validation", "A1:A3"),
              ElementsAre("Validation.Add call 0", "Validation.InputTitle let \"Net\"",
                          "Validation.InputMessage let \"Net amount\nEnter a number\""));
}

TEST_F(Validating, AYesOrNoIsAListThatRefusesBlanksAndHasNoHint) {
  Order("Flag", hdiDetail, rdtYesNo, 0, "Urgent");
  EXPECT_THAT(CallsOn("Validation", "A1:A3"),
              ElementsAre("Validation.Add call 3, 1, (omitted), \"Y,N\"",
                          "Validation.IgnoreBlank let False",
                          "Validation.ErrorMessage let \"Flag can only have Y or N entered\"",
                          "Validation.ErrorTitle let \"Input data error\"",
                          "Validation.InputTitle let \"Flag\"",
                          "Validation.InputMessage let \"Urgent\n\""));
}

TEST_F(Validating, ATextWithoutALengthAndADateGetTheirMessageOnly) {
  Order("Ref", hdiDetail, rdtString, 0);
  EXPECT_THAT(CallsOn("Validation.Add", "A1:A3"), ElementsAre("Validation.Add call 0"));
  EXPECT_EQ(TextOf(ValidationOf("A1"), "InputMessage"), "\nEnter up to 0 characters");
  Order("Day", hdiDetail, rdtDate, 0);
  EXPECT_THAT(CallsOn("Validation.Add", "B1:B3"), ElementsAre("Validation.Add call 0"));
  EXPECT_EQ(TextOf(ValidationOf("B1"), "InputMessage"), "\nEnter a date in mm/dd/yyyy format");
}

TEST_F(Validating, WithoutBothSwitchesNoValidationIsTouchedThoughItIsTaken) {
  properties->let_AddValidation(false);
  properties->let_AddToolTips(false);
  Order("Ref", hdiDetail, rdtString, 30);
  EXPECT_THAT(CallsOn("Validation", "A1:A3"), IsEmpty());
  Order("Other", hdiDetail, rdtString, 30);
  EXPECT_THAT(CallsOn("Range.Validation", "B1:B3"), ElementsAre("Range.Validation get"));
}

TEST_F(Validating, ADownloadRangeHasNoHint) {
  Order("Ref", hdiDetail, rdtString, 30, "Reference")->let_IsDownload(true);
  Place("A1:A3");
  EXPECT_EQ(TextOf(ValidationOf("A1"), "InputMessage"), "Reference\n");
}

TEST_F(Validating, OnCellsThatAreValidatedAlreadyATypedRuleFailsAndNoTooltipFollows) {
  Order("First", hdiDetail, rdtString, 5);
  Place("A1:A3");
  properties->let_AddValidation(true);
  properties->let_AddToolTips(true);
  Order("Ref", hdiDetail, rdtString, 30);
  EXPECT_THAT(CallsOn("Validation", "A1:A3"), ElementsAre("Validation.Add call 6, 1, 8, 30"));
  EXPECT_THAT(events, ElementsAre("RangeAddValidationError"));
  EXPECT_FALSE(properties->get_AddValidation());
  EXPECT_FALSE(properties->get_AddToolTips());
  EXPECT_EQ(TextOf(ValidationOf("A1"), "InputTitle"), "First");
}

TEST_F(Validating, OnCellsThatAreValidatedAlreadyAMessageReplacesTheRule) {
  Order("First", hdiDetail, rdtString, 5);
  Place("A1:A3");
  properties->let_AddValidation(false);
  Order("Ref", hdiDetail, rdtString, 30);
  EXPECT_THAT(CallsOn("Validation.", "A1:A3"),
              ElementsAre("Validation.Add call 0", "Validation.Delete call",
                          "Validation.Add call 0", "Validation.InputTitle let \"Ref\"",
                          "Validation.InputMessage let \"\nEnter up to 30 characters\""));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Validating, AYesOrNoThatFailsTwiceIsToldTwice) {
  host.Calls().FailMember("Validation.Add", 1004, "no");
  host.Calls().FailMember("Validation.IgnoreBlank", 1004, "no");
  const Record flag = Order("Flag", hdiDetail, rdtYesNo);
  Place("A1:A3");
  EXPECT_THAT(events, ElementsAre("RangeAddValidationError", "RangeAddValidationError"));
  EXPECT_TRUE(flag->get_RangeExists());
}

TEST_F(Validating, AFailedRefusalTextIsToldAndTheTitleStillSet) {
  host.Calls().FailMember("Validation.ErrorMessage", 1004, "no");
  Order("Ref", hdiDetail, rdtString, 30);
  EXPECT_THAT(CallsOn("Validation.Error", "A1:A3"),
              ElementsAre("Validation.ErrorMessage let \"Ref cannot have more than 30\"",
                          "Validation.ErrorTitle let \"Input data error\""));
  EXPECT_THAT(events, ElementsAre("RangeAddValidationError"));
}

TEST_F(Validating, AMessageThatCantBeHungOnAnythingIsStageZero) {
  host.Calls().FailMember("Validation.Add", 1004, "no");
  host.Calls().FailMember("Validation.Delete", 1004, "no");
  properties->let_AddValidation(false);
  const Record record = Order("Ref");
  Place("A1:A3");
  EXPECT_THAT(events, ElementsAre("RangeAddTooltipError 0"));
  EXPECT_FALSE(properties->get_AddToolTips());
  EXPECT_TRUE(record->get_RangeExists());
}

TEST_F(Validating, ATitleThatCantBeSetIsStageOneAndTheMessageFollows) {
  host.Calls().FailMember("Validation.InputTitle", 1004, "no");
  Order("Ref", hdiDetail, rdtString, 30);
  Place("A1:A3");
  EXPECT_THAT(events, ElementsAre("RangeAddTooltipError 1"));
  EXPECT_TRUE(properties->get_AddToolTips());
  EXPECT_EQ(TextOf(ValidationOf("A1"), "InputMessage"), "\nEnter up to 30 characters");
}

TEST_F(Validating, AMessageThatCantBeSetStopsARangeThatIsTypedInto) {
  host.Calls().FailMember("Validation.InputMessage", 1004, "no");
  const Record record = Order("Ref", hdiDetail, rdtString, 30);
  EXPECT_EQ(FailureOfPlacing("A1:A3").Number(), 1004);
  EXPECT_THAT(events, IsEmpty());
  EXPECT_FALSE(record->get_RangeExists());
  EXPECT_TRUE(HasName("Ref"));  // what is done stays done
}

TEST_F(Validating, AMessageThatCantBeSetIsStageOneForADownloadRange) {
  host.Calls().FailMember("Validation.InputMessage", 1004, "no");
  const Record record = Order("Ref", hdiDetail, rdtString, 30);
  record->let_IsDownload(true);
  Place("A1:A3");
  EXPECT_THAT(events, ElementsAre("RangeAddTooltipError 1"));
  EXPECT_TRUE(record->get_RangeExists());
}

TEST_F(Validating, ForADownloadRangeEveryLaterFailureIsStageOneAndTheRangeIsPlaced) {
  host.Calls().FailMember("Application.International", 1004, "no");
  host.Calls().FailMember("Interior.Color", 1004, "no");
  properties->let_RangeColour(0xFF80);
  const Record record = Order("Ref", hdiDetail, rdtString, 30);
  record->let_IsDownload(true);
  Place("A1:A3");
  EXPECT_THAT(events, ElementsAre("RangeAddTooltipError 1", "RangeAddTooltipError 1",
                                  "RangeAddTooltipError 1"));
  EXPECT_TRUE(record->get_RangeExists());
}

TEST_F(Validating, WithoutTooltipsADownloadRangeIsntForgiven) {
  host.Calls().FailMember("Interior.Color", 1004, "no");
  properties->let_AddToolTips(false);
  properties->let_RangeColour(0xFF80);
  Order("Ref", hdiDetail, rdtString, 30)->let_IsDownload(true);
  EXPECT_EQ(FailureOfPlacing("A1:A3").Description(), "Error setting format \r\nno");
}

// --- heading ------------------------------------------------------------------------------------

class Headings : public PlacingFixture {
 protected:
  Headings() { properties->let_AddColumnHeadings(true); }
};

TEST_F(Headings, AHeaderOrDetailRangeOnOneRowGetsNone) {
  Order("Ref", hdiHeaderDetail);
  Place("A2");
  EXPECT_FALSE(properties->get_AddColumnHeadings());
  EXPECT_EQ(Cells("A1").get_Value(), Variant());
}

TEST_F(Headings, AHeaderOrDetailRangeOnTwoRowsGetsOne) {
  Order("Ref", hdiHeaderDetail);
  Place("A2:A3");
  EXPECT_EQ(Cells("A1").get_Value(), Variant("Ref"));
}

TEST_F(Headings, ADetailColumnOfOneRowKeepsIts) {
  Order("Ref");
  Place("A2");
  EXPECT_EQ(Cells("A1").get_Value(), Variant("Ref"));
}

TEST_F(Headings, HeadersAndRangesWithoutAnIndicatorNeverGetOne) {
  Order("Ref", hdiHeader);
  Place("A2");
  EXPECT_EQ(Cells("A1").get_Value(), Variant());
  properties->let_AddColumnHeadings(true);
  Order("None", hdiNone);
  Place("B2:B3");
  EXPECT_EQ(Cells("B1").get_Value(), Variant());
}

TEST_F(Headings, ComeFromThePropertiesThenTheDefinitionThenTheName) {
  properties->let_RangeHeading("Own words");
  Order("Net_Amount")->let_RangeHeading("Net");
  Place("A2:A3");
  EXPECT_EQ(Cells("A1").get_Value(), Variant("Own words"));
  properties->let_RangeHeading("");
  Order("Tax_Amount")->let_RangeHeading("Tax");
  Place("B2:B3");
  EXPECT_EQ(Cells("B1").get_Value(), Variant("Tax"));
}

TEST_F(Headings, ANameStandsWithBlanksForItsUnderscores) {
  Order("Net_Amount");
  Place("A2:A3");
  EXPECT_EQ(Cells("A1").get_Value(), Variant("Net Amount"));
  EXPECT_EQ(properties->get_RangeHeading(), "Net Amount");
}

// --- the other ways -----------------------------------------------------------------------------

TEST_F(Placing, ADetailRangeIsDeclaredFromThePropertiesAndPlacedOnTheirCells) {
  properties->let_RangeName("Ref");
  properties->get_ExcelRange()->let_DetailIndicator(hdiDetail);
  properties->get_ExcelRange()->let_Description("Reference");
  properties->set_RangeArea(Cells("C2:C4"));
  EXPECT_EQ(list->AddDetailRangeToSpreadsheet(properties), nullptr);
  EXPECT_EQ(list->Item("Ref")->get_Description(), "Reference");
  EXPECT_TRUE(list->Item("Ref")->get_RangeExists());
  EXPECT_EQ(RefersTo("Ref"), "=Sheet1!$C$2:$C$4");
}

TEST_F(Placing, ADetailRangeThatCantBePlacedStaysDeclared) {
  properties->let_RangeName("Ref");
  properties->get_ExcelRange()->let_DetailIndicator(hdiDetail);
  properties->set_RangeArea(Cells("C2:D4"));
  const Error error = ErrorOf([&] { list->AddDetailRangeToSpreadsheet(properties); });
  EXPECT_EQ(error.Description(), "Only one column should be selected");
  EXPECT_THAT(error.Source(), HasSubstr("AddDetailRangeToSpreadsheet of Class Module "
                                        "clsInterfaceRangeList Line#:"));
  EXPECT_EQ(list->Count(), 1);
}

TEST_F(Placing, ARangeThatIsntOnTheListIsLeftAlone) {
  properties->let_RangeName("Ref");
  EXPECT_THAT(CallsOf([&] { list->AddRangeNotOnListToSpreadsheet(excel::Range(), properties); }),
              IsEmpty());
}

TEST_F(Placing, MakesTheseCallsInThisOrder) {
  properties->let_AddFormat(true);
  properties->let_AddValidation(true);
  properties->let_AddToolTips(true);
  properties->let_RowsToAdd(4);
  Order("Ref", hdiDetail, rdtString, 30);
  const excel::Range cells = Cells("B2");
  const auto calls = CallsOf([&] {
    selection = cells;
    list->AddRangeToSpreadsheet(selection, properties);
  });
  EXPECT_THAT(calls,
              ElementsAre("Range.Columns get", "Range.Count get", "Range.Resize get 4",
                          "Range.Rows get", "Range.Count get", "Range.Name let \"Ref\"",
                          "Range.NumberFormat let \"@\"", "Range.HorizontalAlignment let -4131",
                          "Range.Validation get", "Validation.Add call 6, 1, 8, 30",
                          "Validation.ErrorMessage let \"Ref cannot have more than 30\"",
                          "Validation.ErrorTitle let \"Input data error\"",
                          "Validation.InputTitle let \"Ref\"",
                          "Validation.InputMessage let \"\nEnter up to 30 characters\"",
                          "Worksheet.Application get", "Application.International get 5",
                          "Worksheet.Application get", "Application.International get 3"));
}

}  // namespace
}  // namespace rangewerks::tests
