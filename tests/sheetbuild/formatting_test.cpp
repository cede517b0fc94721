// How the cells of a placed range are made to look.
#include <gmock/gmock.h>

#include "sheetbuild/placing_fixture.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Formatting : public PlacingFixture {
 protected:
  std::vector<std::string> Format(const std::string& address) {
    properties->set_RangeArea(Cells(address));
    return CallsOf([&] { properties->FormatRange(); });
  }
};

TEST_F(Formatting, WithNothingAskedForNoCellIsTouched) { EXPECT_THAT(Format("A2:A5"), IsEmpty()); }

TEST_F(Formatting, WritesTheHeadingThenFitsTheColumnThenFormatsTheCell) {
  properties->let_AddColumnHeadings(true);
  properties->let_RangeHeading("Net");
  properties->let_BoldRangeHeadings(true);
  properties->let_HeadingColour(0xFFFFFF);
  properties->let_AddHeadingsBorder(true);
  properties->let_WrapHeaderText(true);
  EXPECT_THAT(Format("A2:A5"),
              ElementsAre("Range.Item get 1", "Range.Offset get -1", "Range.Value let \"Net\"",
                          "Range.EntireColumn get", "Range.AutoFit call", "Range.Font get",
                          "Font.Bold let True", "Range.Interior get", "Interior.Color let 16777215",
                          "Range.Borders get 9", "Border.LineStyle let -4119",
                          "Border.Weight let 4", "Range.Borders get 10", "Border.LineStyle let 1",
                          "Border.Weight let 2", "Range.Borders get 7", "Border.LineStyle let 1",
                          "Border.Weight let 2", "Range.Borders get 8", "Border.LineStyle let 1",
                          "Border.Weight let 2", "Range.WrapText let True"));
}

TEST_F(Formatting, ARangeThatBeginsInRowOneGetsNoHeadingAndTheRestOfItsFormat) {
  properties->let_AddColumnHeadings(true);
  properties->let_RangeHeading("Net");
  properties->let_SetForceColumnWidth(20);
  EXPECT_THAT(Format("A1:A5"), ElementsAre("Range.Item get 1", "Range.Offset get -1",
                                           "Range.EntireColumn get", "Range.ColumnWidth let 20"));
}

TEST_F(Formatting, AColouredRangeIsFilledAndGetsItsLinesWeightFirst) {
  properties->let_RangeColour(0xFF80);
  properties->let_AlternateRangeColour(0xFF80);
  EXPECT_THAT(Format("A2:A5"),
              ElementsAre("Range.Interior get", "Interior.Color let 65408", "Range.Borders get 12",
                          "Border.Weight let 2", "Border.LineStyle let 1", "Range.Borders get 10",
                          "Border.Weight let 2", "Border.LineStyle let 1", "Range.Borders get 7",
                          "Border.Weight let 2", "Border.LineStyle let 1"));
}

TEST_F(Formatting, TheLinesOfAColouredRangeCanBeLeftOut) {
  properties->let_RangeColour(0xFF80);
  properties->let_AlternateRangeColour(0xFF80);
  properties->let_DoNotAddBoxLinesIfColoured(true);
  EXPECT_THAT(Format("A2:A5"), ElementsAre("Range.Interior get", "Interior.Color let 65408"));
}

TEST_F(Formatting, LinesThatCantBeDrawnAreSilentlyLeftOut) {
  properties->let_RangeColour(0xFF80);
  properties->let_AlternateRangeColour(0xFF80);
  host.Calls().FailMember("Border.Weight", 1004, "no");
  host.Calls().FailMember("Border.LineStyle", 1004, "no");
  Format("A2:A5");
  host.Calls().FailMember("Range.Borders", 1004, "no");
  Format("A2:A5");
  EXPECT_EQ(FormatOf("A2", "Interior").AsObject().Get(Member("Color")),
            Variant(std::int32_t{65408}));
}

TEST_F(Formatting, WithoutAFillThereAreNoLinesButBandingWithTheAlternateColour) {
  properties->let_RangeColour(-1);
  properties->let_AlternateRangeColour(0xFF80);
  EXPECT_THAT(Format("A2:A5"),
              ElementsAre("Range.Rows get", "Range.Count get", "Range.FormatConditions get",
                          "FormatConditions.Add call Type:=2, Formula1:=\"=MOD(ROW(), 2)=0\"",
                          "Range.FormatConditions get 1", "FormatCondition.Interior get",
                          "Interior.Color let 65408"));
}

TEST_F(Formatting, WhiteCountsAsNoFill) {
  properties->let_RangeColour(0xFFFFFF);
  properties->let_AlternateRangeColour(0xFFFFFF);
  EXPECT_THAT(Format("A2:A5"), IsEmpty());
}

TEST_F(Formatting, EqualColoursGiveNoBanding) {
  properties->let_RangeColour(0xFF80);
  properties->let_AlternateRangeColour(0xFF80);
  for (const std::string& line : Format("A2:A5")) {
    EXPECT_EQ(line.find("FormatConditions"), std::string::npos) << line;
  }
}

TEST_F(Formatting, AnAlternateColourLeftAtNoneIsACondition) {
  properties->let_RangeColour(0xFF80);
  properties->let_AlternateRangeColour(-1);
  const auto calls = Format("A2:A5");
  EXPECT_EQ(calls.back(), "Interior.Color let -1");
}

TEST_F(Formatting, AOneRowRangeGetsNoBandingWhateverItsColours) {
  properties->let_AlternateRangeColour(0xFF80);
  EXPECT_THAT(Format("A2"), ElementsAre("Range.Rows get", "Range.Count get"));
}

TEST_F(Formatting, TheFormulaOfTheBandingHasTheHostsListSeparatorAndABlank) {
  properties->let_AlternateRangeColour(0xFF80);
  properties->let_ListSeparator(";");
  const auto calls = Format("A2:A5");
  ASSERT_GE(calls.size(), 4U);
  EXPECT_EQ(calls[3], "FormatConditions.Add call Type:=2, Formula1:=\"=MOD(ROW(); 2)=0\"");
}

TEST_F(Formatting, WhereTheHostTakesNoMoreConditionsThoseOfEachCellMakeRoom) {
  properties->let_AlternateRangeColour(0xFF80);
  Format("A3");
  Cells("A3")
      .Get(Member("FormatConditions"))
      .AsObject()
      .Call(Member("Add"), {}, {{Member("Type"), 2}, {Member("Formula1"), "=TRUE"}});
  properties->set_RangeArea(Cells("A2:A3"));
  host.Calls().FailCall(4, 1004, "too many");  // the first FormatConditions.Add
  const auto calls = CallsOf([&] { properties->FormatRange(); });
  EXPECT_THAT(
      calls,
      ElementsAre("Range.Rows get", "Range.Count get", "Range.FormatConditions get",
                  "FormatConditions.Add call Type:=2, Formula1:=\"=MOD(ROW(), 2)=0\"",
                  "Range.Rows get", "Range.Count get", "Range.Item get 1",
                  "Range.FormatConditions get", "FormatConditions.Count get", "Range.Item get 2",
                  "Range.FormatConditions get", "FormatConditions.Count get",
                  "FormatConditions.Delete call", "Range.FormatConditions get",
                  "FormatConditions.Add call Type:=2, Formula1:=\"=MOD(ROW(), 2)=0\"",
                  "Range.FormatConditions get 1", "FormatCondition.Interior get",
                  "Interior.Color let 65408"));
}

TEST_F(Formatting, AWidthOfNothingIsAWidth) {
  properties->let_SetForceColumnWidth(0);
  EXPECT_THAT(Format("A2:A5"), ElementsAre("Range.EntireColumn get", "Range.ColumnWidth let 0"));
}

TEST_F(Formatting, TheClosingLineIsStyleThenWeightAndMayFail) {
  properties->let_AddLineAtBottomOfRange(true);
  EXPECT_THAT(Format("A2:A5"),
              ElementsAre("Range.Borders get 9", "Border.LineStyle let 1", "Border.Weight let 2"));
  host.Calls().FailMember("Border.LineStyle", 1004, "no");
  EXPECT_THAT(Format("A2:A5"),
              ElementsAre("Range.Borders get 9", "Border.LineStyle let 1", "Border.Weight let 2"));
}

TEST_F(Formatting, AFailureSaysThatTheFormatFailedAndWhere) {
  properties->let_RangeColour(0xFF80);
  host.Calls().FailMember("Interior.Color", 1004, "protected");
  properties->set_RangeArea(Cells("A2:A5"));
  const Error error = ErrorOf([&] { properties->FormatRange(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "Error setting format \r\nprotected");
  EXPECT_THAT(
      error.Source(),
      MatchesRegex("Line No.: [0-9]+ Workbook\r\nFormatRange of Class Module clsRangeProperties "
                   "Line#:[0-9]+"));
}

TEST_F(Formatting, AFailureOfTheHeadingsFormatIsToldOnceWithBothPlaces) {
  properties->let_AddColumnHeadings(true);
  properties->let_BoldRangeHeadings(true);
  host.Calls().FailMember("Font.Bold", 1004, "protected");
  properties->set_RangeArea(Cells("A2:A5"));
  const Error error = ErrorOf([&] { properties->FormatRange(); });
  EXPECT_EQ(error.Description(), "Error setting format \r\nprotected");
  EXPECT_THAT(
      error.Source(),
      MatchesRegex(
          "Line No.: [0-9]+ Line No.: [0-9]+ Workbook\r\nSetHeaderRangeFormat of Class Module "
          "clsRangeProperties Line#:[0-9]+\r\nFormatRange of "
          "Class Module clsRangeProperties Line#:[0-9]+"));
}

TEST_F(Formatting, WithoutCellsItFails) {
  properties->let_SetForceColumnWidth(10);
  EXPECT_EQ(ErrorOf([&] { properties->FormatRange(); }).Number(), 91);
}

TEST_F(Formatting, TheNameIsThatOfTheScratchDefinition) {
  EXPECT_EQ(properties->get_RangeName(), properties->get_ExcelRange()->get_RangeName());
  properties->let_RangeName("Ref");
  EXPECT_EQ(properties->get_ExcelRange()->get_RangeName(), "Ref");
}

}  // namespace
}  // namespace rangewerks::tests
