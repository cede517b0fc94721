// Formats of the workbook in memory beyond the contract: call log, words of refusals, large areas.
#include <gmock/gmock.h>

#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"
#include "platform/excel.h"
#include "platform/excel_format.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Member;
using automation::Null;
using hosts::workbook::Host;
using testing::ElementsAre;

class WorkbookFormats : public testing::Test {
 protected:
  WorkbookFormats() {
    book_ = host_.AddWorkbook("Book", {"Data Sheet", "Other"});
    sheet_ = GetObject(book_, "ActiveSheet");
  }
  Object Cells(const char* address) { return GetObject(sheet_, "Range", {address}); }
  Object Validation(const char* address) { return GetObject(Cells(address), "Validation"); }
  Object Conditions(const char* address) { return GetObject(Cells(address), "FormatConditions"); }
  Object AddCondition(const char* address, const std::string& formula) {
    static const Member kType{"Type"};
    static const Member kFormula1{"Formula1"};
    return Conditions(address)
        .Call(Member("Add"), {}, {{kType, 2}, {kFormula1, formula}})
        .AsObject();
  }
  std::int32_t LineStyle(const char* address, std::int32_t index) {
    return GetLong(GetObject(Cells(address), "Borders", {index}), "LineStyle");
  }
  void ExpectRefusal(const std::string& words, const std::function<void()>& step) {
    const automation::Error error = ErrorOf(step);
    EXPECT_EQ(error.Number(), 1004) << words;
    EXPECT_EQ(error.Source(), "Workbook") << words;
    EXPECT_EQ(error.Description(), words);
  }

  Host host_;
  Object book_;
  Object sheet_;
};

// --- the call log --------------------------------------------------------------------------------

TEST_F(WorkbookFormats, AreLoggedAsTheLibraryCallsThem) {
  const excel::Range cells(Cells("B3:B9"));
  host_.Calls().LogCalls(true);
  cells.let_Name("Code");
  cells.let_NumberFormat("@");
  cells.let_HorizontalAlignment(excel::xlLeft);
  cells.get_Interior().let_Color(0xFF80);
  cells.get_Borders(excel::xlInsideHorizontal).let_Weight(excel::xlThin);
  cells.get_Borders(excel::xlEdgeBottom).let_LineStyle(excel::xlContinuous);
  cells.get_EntireColumn().let_ColumnWidth(12);
  EXPECT_THAT(host_.Calls().Lines(),
              ElementsAre("Range.Name let \"Code\"", "Range.NumberFormat let \"@\"",
                          "Range.HorizontalAlignment let -4131", "Range.Interior get",
                          "Interior.Color let 65408", "Range.Borders get 12", "Border.Weight let 2",
                          "Range.Borders get 9", "Border.LineStyle let 1", "Range.EntireColumn get",
                          "Range.ColumnWidth let 12"));
}

TEST_F(WorkbookFormats, OfAHeadingAreLoggedAsTheLibraryCallsThem) {
  const excel::Range cell(Cells("B3"));
  host_.Calls().LogCalls(true);
  const excel::Range heading = cell.get_Offset(-1);
  heading.get_EntireColumn().AutoFit();
  heading.get_Font().let_Bold(true);
  heading.let_WrapText(true);
  cell.get_Resize(7);
  EXPECT_THAT(host_.Calls().Lines(),
              ElementsAre("Range.Offset get -1", "Range.EntireColumn get", "Range.AutoFit call",
                          "Range.Font get", "Font.Bold let True", "Range.WrapText let True",
                          "Range.Resize get 7"));
}

TEST_F(WorkbookFormats, OfValidationAreLoggedAsTheLibraryCallsThem) {
  const excel::Validation validation = excel::Range(Cells("B3:B9")).get_Validation();
  const std::int16_t length = 30;
  host_.Calls().LogCalls(true);
  validation.Add(excel::xlValidateTextLength, excel::xlValidAlertStop, excel::xlLessEqual, length);
  validation.let_ErrorMessage("too long");
  validation.Delete();
  validation.Add(excel::xlValidateList, excel::xlValidAlertStop, std::nullopt, "Y,N");
  validation.let_IgnoreBlank(false);
  EXPECT_TRUE(Fails([&] { validation.Add(excel::xlValidateInputOnly); }));
  EXPECT_THAT(
      host_.Calls().Lines(),
      ElementsAre("Validation.Add call 6, 1, 8, 30", "Validation.ErrorMessage let \"too long\"",
                  "Validation.Delete call", "Validation.Add call 3, 1, (omitted), \"Y,N\"",
                  "Validation.IgnoreBlank let False", "Validation.Add call 0"));
}

TEST_F(WorkbookFormats, OfConditionsAreLoggedAsTheLibraryCallsThem) {
  const excel::Range cells(Cells("B3:B9"));
  host_.Calls().LogCalls(true);
  cells.get_FormatConditions().Add(excel::xlExpression, "=MOD(ROW(), 2)=0");
  cells.get_FormatConditions(1).get_Interior().let_Color(-1);
  EXPECT_EQ(cells.get_FormatConditions().get_Count(), 1);
  EXPECT_THAT(host_.Calls().Lines(),
              ElementsAre("Range.FormatConditions get",
                          "FormatConditions.Add call Type:=2, Formula1:=\"=MOD(ROW(), 2)=0\"",
                          "Range.FormatConditions get 1", "FormatCondition.Interior get",
                          "Interior.Color let -1", "Range.FormatConditions get",
                          "FormatConditions.Count get"));
}

TEST_F(WorkbookFormats, AreReachedThroughTheCollectionOfBordersToo) {
  const Object borders = GetObject(Cells("B3"), "Borders");
  host_.Calls().LogCalls(true);
  Let(GetObject(borders, "Item", {9}), "LineStyle", 1);
  Let(GetObject(borders, "_Default", {9}), "Weight", 1);
  EXPECT_THAT(host_.Calls().Lines(), ElementsAre("Borders.Item get 9", "Border.LineStyle let 1",
                                                 "Borders._Default get 9", "Border.Weight let 1"));
}

TEST_F(WorkbookFormats, FailOnRequest) {
  host_.Calls().FailMember("Validation.Add", 1004, "busy");
  EXPECT_EQ(ErrorOf([&] { Call(Validation("B2"), "Add", {0}); }).Description(), "busy");
  host_.Calls().ClearFailures();
  Call(Validation("B2"), "Add", {0});
  EXPECT_EQ(GetLong(Validation("B2"), "Type"), 0);
}

// --- large areas ---------------------------------------------------------------------------------

TEST_F(WorkbookFormats, OfWholeColumnsAndOfTheWholeSheetAreGivenAtOnce) {
  const Object all = GetObject(sheet_, "Cells");
  Let(all, "NumberFormat", "0.00");
  Let(GetObject(Cells("B:C"), "Font"), "Bold", true);
  Let(Cells("C5"), "NumberFormat", "@");
  EXPECT_EQ(GetText(Cells("XFD1048576"), "NumberFormat"), "0.00");
  EXPECT_EQ(Get(all, "NumberFormat"), Variant(Null()));
  EXPECT_EQ(GetText(Cells("C6:C1048576"), "NumberFormat"), "0.00");
  EXPECT_EQ(Get(GetObject(Cells("C5"), "Font"), "Bold"), Variant(true));
  Let(Cells("C5"), "Value", 7);
  EXPECT_EQ(Get(Cells("C5"), "Value"), Variant("7")) << "the format of the cell reads as text";
}

TEST_F(WorkbookFormats, AreTakenByWhatIsEntered) {
  Let(Cells("B:B"), "NumberFormat", "dd/mm/yyyy");
  Let(Cells("B2"), "Value", automation::Date{45322});
  EXPECT_EQ(GetText(Cells("B2"), "NumberFormat"), "dd/mm/yyyy");
  Let(Cells("C2"), "Value", automation::Date{45322});
  EXPECT_EQ(GetText(Cells("C2"), "NumberFormat"), "m/d/yyyy");
  EXPECT_EQ(GetText(Cells("C3"), "NumberFormat"), "General");
}

TEST_F(WorkbookFormats, OfTheLastColumnsHaveLinesAtTheEndsOfTheSheet) {
  for (const std::int32_t index : {7, 8, 9, 10, 11, 12}) {
    Let(GetObject(Cells("XFC:XFD"), "Borders", {index}), "LineStyle", 1);
  }
  EXPECT_EQ(LineStyle("XFD1048576", 9), 1);
  EXPECT_EQ(LineStyle("XFD1048576", 10), 1);
  EXPECT_EQ(LineStyle("XFC1", 8), 1);
  EXPECT_EQ(LineStyle("XFB7", 10), 1) << "the line is that of both cells";
}

// --- columns -------------------------------------------------------------------------------------

TEST_F(WorkbookFormats, AutoFitCountsTheCharactersOfTheLongestText) {
  Let(Cells("B1"), "Value", "A heading");
  Let(Cells("B2"), "Value", automation::Date{45322});
  Let(Cells("C1"), "Value", 123456789012.0);
  Let(Cells("E1"), "Formula", "=A1");
  Let(Cells("E:E"), "ColumnWidth", 20);
  Call(Cells("B:E"), "AutoFit");
  EXPECT_EQ(Get(Cells("B1"), "ColumnWidth"), Variant(9.0));
  EXPECT_EQ(Get(Cells("C1"), "ColumnWidth"), Variant(12.0));
  EXPECT_EQ(Get(Cells("D1"), "ColumnWidth"), Variant(8.43)) << "empty columns stay";
  EXPECT_EQ(Get(Cells("E1"), "ColumnWidth"), Variant(20.0)) << "so do those that show nothing";
}

// --- conditional formats -------------------------------------------------------------------------

TEST_F(WorkbookFormats, OfAConditionEndWithIt) {
  const Object condition = AddCondition("B2:B9", "=ROW()=3");
  const Object interior = GetObject(condition, "Interior");
  Call(Conditions("B2:B8"), "Delete");
  Let(interior, "Color", 0xFF);
  EXPECT_EQ(
      GetLong(GetObject(Conditions("B9"), "Item", {1}).Get(Member("Interior")).AsObject(), "Color"),
      0xFF);
  Call(Conditions("B9"), "Delete");
  ExpectRefusal("The conditional format =ROW()=3 has been deleted",
                [&] { Get(condition, "Formula1"); });
  ExpectRefusal("The conditional format =ROW()=3 has been deleted",
                [&] { Let(interior, "Color", 0); });
}

TEST_F(WorkbookFormats, OfConditionsAreEnumeratedInTheOrderOfAdding) {
  AddCondition("B2:B9", "=ROW()=3");
  AddCondition("B5:B20", "=ROW()=2");
  std::vector<std::string> formulas;
  for (const Variant& condition : Elements(Conditions("B2:B9"))) {
    formulas.push_back(GetText(condition.AsObject(), "Formula1"));
  }
  EXPECT_THAT(formulas, ElementsAre("=ROW()=3", "=ROW()=2"));
}

TEST_F(WorkbookFormats, OfConditionsReadTheSeparatorOfTheLocale) {
  host_.SetInternational(3, ",");
  host_.SetInternational(5, ";");
  AddCondition("B2:B9", "=MOD(ROW(); 2)=0");
  EXPECT_EQ(GetText(GetObject(Conditions("B2"), "Item", {1}), "Formula1"), "=MOD(ROW(); 2)=0");
  ExpectRefusal("The formula =MOD(ROW(), 2)=0 can't be read where \";\" separates arguments",
                [&] { AddCondition("B2:B9", "=MOD(ROW(), 2)=0"); });
  EXPECT_EQ(GetLong(Conditions("B2:B9"), "Count"), 1);
}

// --- what is refused -----------------------------------------------------------------------------

TEST_F(WorkbookFormats, SayWhatIsRefused) {
  ExpectRefusal(
      "HorizontalAlignment is 1 (general), -4131 (left), -4108 (center) or -4152 (right), "
      "not 5",
      [&] { Let(Cells("B2"), "HorizontalAlignment", 5); });
  ExpectRefusal("A colour is 0 to 16777215 (0xBBGGRR), not 16777216",
                [&] { Let(GetObject(Cells("B2"), "Interior"), "Color", 0x1000000); });
  ExpectRefusal("The palette has the colours 1 to 56, and -4142 stands for none, not 57",
                [&] { Let(GetObject(Cells("B2"), "Interior"), "ColorIndex", 57); });
  ExpectRefusal("A column's width is 0 to 255 characters, not 255.5",
                [&] { Let(Cells("B2"), "ColumnWidth", 255.5); });
  ExpectRefusal("Only whole columns can be made as wide as what they show, not 'Data Sheet'!$B$2",
                [&] { Call(Cells("B2"), "AutoFit"); });
  ExpectRefusal(
      "Borders are 7 to 12 (left, top, bottom, right, inside vertical, inside "
      "horizontal), not 5",
      [&] { Get(Cells("B2"), "Borders", {5}); });
  ExpectRefusal("There are no lines inside 'Data Sheet'!$B$2:$C$2 in that direction",
                [&] { Let(GetObject(Cells("B2:C2"), "Borders", {12}), "Weight", 2); });
  ExpectRefusal("A line's weight is 1 (hairline), 2 (thin), -4138 (medium) or 4 (thick), not 3",
                [&] { Let(GetObject(Cells("B2"), "Borders", {9}), "Weight", 3); });
  ExpectRefusal("A line's style is 1 (continuous), -4119 (double) or -4142 (none), not 4",
                [&] { Let(GetObject(Cells("B2"), "Borders", {9}), "LineStyle", 4); });
  ExpectRefusal("A conditional format is of the type 2 (a formula), not 1",
                [&] { Call(Conditions("B2"), "Add", {1}); });
  ExpectRefusal("A conditional format needs Formula1", [&] { Call(Conditions("B2"), "Add", {2}); });
  ExpectRefusal("A condition is a formula that begins with \"=\", not \" \"",
                [&] { AddCondition("B2", " "); });
}

TEST_F(WorkbookFormats, SayThatThereIsNoSuchCondition) {
  const automation::Error error = ErrorOf([&] { Get(Cells("B2"), "FormatConditions", {1}); });
  EXPECT_EQ(error.Number(), 9);
  EXPECT_EQ(error.Description(),
            "'Data Sheet'!$B$2 has 0 conditional formats; there is none with the number 1");
}

TEST_F(WorkbookFormats, SayWhyAValidationIsRefused) {
  const auto refuse = [&](const std::string& words, std::initializer_list<Argument> arguments) {
    ExpectRefusal(words, [&] { Call(Validation("B2"), "Add", arguments); });
  };
  refuse("A validation is of the type 0, 1, 2, 3 or 6, not 7", {7});
  refuse("The alert style of a validation is 1, 2 or 3, not 4", {3, 4, 8, "Y,N"});
  refuse("The operator of a validation is 3 to 8 (those with one formula), not 1",
         {6, 1, Argument::Omitted(), 30});
  refuse("A validation of the type 3 needs Formula1", {3});
  refuse(
      "Formula1 of a validation of the type 6 is a number or begins with \"=\"; it can't be "
      "\"many\"",
      {6, 1, 8, "many"});
  refuse("The formula of a validation can't have more than 255 characters",
         {3, 1, 8, std::string(256, 'Y')});
  ExpectRefusal("The cells 'Data Sheet'!$B$2 have no validation",
                [&] { Get(Validation("B2"), "Formula1"); });
  Call(Validation("B2"), "Add", {6, 1, 8, "=A1"});
  ExpectRefusal("Cells of $A$1:$B$2 have a validation already",
                [&] { Call(Validation("A1:B2"), "Add", {0}); });
  ExpectRefusal("The cells 'Data Sheet'!$A$1:$B$2 don't all have the same validation",
                [&] { Get(Validation("A1:B2"), "Type"); });
  ExpectRefusal("The cells 'Data Sheet'!$A$1:$B$2 don't all have a validation",
                [&] { Let(Validation("A1:B2"), "IgnoreBlank", false); });
  ExpectRefusal("The ErrorTitle of a validation can't have more than 32 characters",
                [&] { Let(Validation("B2"), "ErrorTitle", std::string(33, 'x')); });
}

TEST_F(WorkbookFormats, OfOneSheetAreNotThoseOfAnother) {
  Let(Cells("B2"), "NumberFormat", "0.00");
  Call(Validation("B2"), "Add", {0});
  const Object other = GetObject(GetObject(book_, "Sheets", {"Other"}), "Range", {"B2"});
  EXPECT_EQ(GetText(other, "NumberFormat"), "General");
  EXPECT_TRUE(Fails([&] { Get(GetObject(other, "Validation"), "Type"); }));
}

TEST_F(WorkbookFormats, OfADeletedSheetAreRefused) {
  const Object validation = Validation("B2");
  const Object interior = GetObject(Cells("B2"), "Interior");
  Call(sheet_, "Delete");
  ExpectRefusal("The sheet of this range has been deleted", [&] { Call(validation, "Add", {0}); });
  ExpectRefusal("The sheet of this range has been deleted", [&] { Let(interior, "Color", 0); });
}

TEST_F(WorkbookFormats, StayWhenContentsAreCleared) {
  Call(Validation("B2:B9"), "Add", {0});
  AddCondition("B2:B9", "=ROW()=3");
  Let(Cells("B2:B9"), "WrapText", true);
  Let(Cells("B2:B9"), "Value", 5.0);
  Call(Cells("B2:B9"), "ClearContents");
  EXPECT_EQ(GetLong(Validation("B2:B9"), "Type"), 0);
  EXPECT_EQ(GetLong(Conditions("B2:B9"), "Count"), 1);
  EXPECT_EQ(Get(Cells("B2:B9"), "WrapText"), Variant(true));
}

}  // namespace
}  // namespace rangewerks::tests
