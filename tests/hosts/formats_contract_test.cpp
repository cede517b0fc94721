// What cells look like: number formats, alignment, fonts, fills, lines, widths.
#include "hosts/contract.h"
#include "platform/excel_constants.h"

namespace rangewerks::tests {
namespace {

using automation::Null;

constexpr std::int32_t kWhite = 0xFFFFFF;

class FormatsContract : public HostContract {
 protected:
  Object Interior(const char* address) { return GetObject(Cells(address), "Interior"); }
  Object Border(const char* address, std::int32_t index) {
    return GetObject(Cells(address), "Borders", {index});
  }
  static Object Column(const Object& cells) { return GetObject(cells, "EntireColumn"); }

  void ExpectLine(const char* address, std::int32_t index, std::int32_t style,
                  std::int32_t weight) {
    EXPECT_EQ(GetLong(Border(address, index), "LineStyle"), style) << address << " " << index;
    EXPECT_EQ(GetLong(Border(address, index), "Weight"), weight) << address << " " << index;
  }
  void ExpectNoLine(const char* address, std::int32_t index) {
    EXPECT_EQ(GetLong(Border(address, index), "LineStyle"), -4142) << address << " " << index;
  }
};
CONTRACT_FOR_ALL_HOSTS(FormatsContract);

TEST_P(FormatsContract, TheConstantsAreThePublishedNumbers) {
  EXPECT_EQ(excel::xlEdgeLeft, 7);
  EXPECT_EQ(excel::xlEdgeTop, 8);
  EXPECT_EQ(excel::xlEdgeBottom, 9);
  EXPECT_EQ(excel::xlEdgeRight, 10);
  EXPECT_EQ(excel::xlInsideHorizontal, 12);
  EXPECT_EQ(excel::xlHairline, 1);
  EXPECT_EQ(excel::xlThin, 2);
  EXPECT_EQ(excel::xlThick, 4);
  EXPECT_EQ(excel::xlContinuous, 1);
  EXPECT_EQ(excel::xlDouble, -4119);
  EXPECT_EQ(excel::xlLineStyleNone, -4142);
  EXPECT_EQ(excel::xlColorIndexNone, -4142);
  EXPECT_EQ(excel::xlLeft, -4131);
  EXPECT_EQ(excel::xlRight, -4152);
}

// --- numbers and texts ---------------------------------------------------------------------------

TEST_P(FormatsContract, ANumberFormatIsReadBackAsItWasWritten) {
  for (const char* format : {"@", "0", "0;_ ;-0", "0.00_ ;-0.00", "0.000_ ;-0.000", "mm/dd/yyyy",
                             "dd/mm/yyyy", "yyyy/mm/dd", "#,##0.00", "0.00%", "0.00E+00",
                             "h:mm AM/PM", "[h]:mm:ss", "[Red]0;[Blue]-0", "\"Day\" d"}) {
    Let(Cells("B2:B9"), "NumberFormat", format);
    EXPECT_EQ(GetText(Cells("B2:B9"), "NumberFormat"), format);
    EXPECT_EQ(GetText(Cells("B5"), "NumberFormat"), format);
  }
}

TEST_P(FormatsContract, AnEmptyNumberFormatResetsTheFormat) {
  EXPECT_EQ(GetText(Cells("B2"), "NumberFormat"), "General");
  Let(Cells("B2"), "NumberFormat", "0.00");
  Let(Cells("B2"), "NumberFormat", "");
  EXPECT_EQ(GetText(Cells("B2"), "NumberFormat"), "General");
}

TEST_P(FormatsContract, CellsKeepTheirValuesUnderANewFormat) {
  Let(Cells("B2"), "Value", -1234.5);
  for (const char* format : {"@", "0;_ ;-0", "0.00_ ;-0.00"}) {
    Let(Cells("B2"), "NumberFormat", format);
    EXPECT_EQ(Get(Cells("B2"), "Value"), Variant(-1234.5)) << format;
  }
}

TEST_P(FormatsContract, ClearContentsLeavesTheFormats) {
  Let(Cells("B2"), "NumberFormat", "0.00");
  Let(Interior("B2"), "Color", 0x80FF00);
  Let(Cells("B2"), "Value", 5.0);
  Call(Cells("B2"), "ClearContents");
  EXPECT_EQ(GetText(Cells("B2"), "NumberFormat"), "0.00");
  EXPECT_EQ(GetLong(Interior("B2"), "Color"), 0x80FF00);
}

TEST_P(FormatsContract, CellsAreAligned) {
  EXPECT_EQ(GetLong(Cells("B2"), "HorizontalAlignment"), 1) << "by what they hold";
  for (const std::int32_t alignment : {-4131, -4152, 1}) {
    Let(Cells("B2:B9"), "HorizontalAlignment", alignment);
    EXPECT_EQ(GetLong(Cells("B2:B9"), "HorizontalAlignment"), alignment);
    EXPECT_EQ(GetLong(Cells("B9"), "HorizontalAlignment"), alignment);
  }
}

TEST_P(FormatsContract, TextsWrapAndAreBold) {
  EXPECT_EQ(Get(Cells("B2"), "WrapText"), Variant(false));
  EXPECT_EQ(Get(GetObject(Cells("B2"), "Font"), "Bold"), Variant(false));
  for (const bool on : {true, false}) {
    Let(Cells("B2:C2"), "WrapText", on);
    Let(GetObject(Cells("B2:C2"), "Font"), "Bold", on);
    EXPECT_EQ(Get(Cells("C2"), "WrapText"), Variant(on));
    EXPECT_EQ(Get(GetObject(Cells("C2"), "Font"), "Bold"), Variant(on));
  }
}

TEST_P(FormatsContract, WhatDiffersAmongTheCellsIsNull) {
  Let(Cells("B2"), "NumberFormat", "0.00");
  Let(Cells("B2"), "HorizontalAlignment", -4131);
  Let(Cells("B2"), "WrapText", true);
  Let(GetObject(Cells("B2"), "Font"), "Bold", true);
  Let(Interior("B2"), "Color", 0xFF);
  Let(Border("B2", 7), "LineStyle", 1);
  for (const char* member : {"NumberFormat", "HorizontalAlignment", "WrapText"}) {
    EXPECT_EQ(Get(Cells("B2:B3"), member), Variant(Null())) << member;
  }
  EXPECT_EQ(Get(GetObject(Cells("B2:B3"), "Font"), "Bold"), Variant(Null()));
  EXPECT_EQ(Get(Interior("B2:B3"), "Color"), Variant(Null()));
  EXPECT_EQ(Get(Interior("B2:B3"), "ColorIndex"), Variant(Null()));
  EXPECT_EQ(Get(Border("B2:B3", 7), "LineStyle"), Variant(Null()));
}

// --- fills ---------------------------------------------------------------------------------------

TEST_P(FormatsContract, AFillIsAColourOfBlueGreenAndRed) {
  for (const std::int32_t color : {0x0000FF, 0xFF80, 0x123456, 0, kWhite}) {
    Let(Interior("B2:C9"), "Color", color);
    EXPECT_EQ(GetLong(Interior("B2:C9"), "Color"), color);
    EXPECT_EQ(GetLong(Interior("C9"), "Color"), color);
  }
  EXPECT_NE(GetLong(Interior("B2"), "ColorIndex"), -4142) << "white is a fill";
}

TEST_P(FormatsContract, CellsWithoutAFillShowWhiteAndHaveNoColorIndex) {
  EXPECT_EQ(GetLong(Interior("B2"), "Color"), kWhite);
  EXPECT_EQ(GetLong(Interior("B2"), "ColorIndex"), -4142);
}

TEST_P(FormatsContract, TheColourMinusOneIsNoFill) {
  Let(Interior("B2"), "Color", 0xFF80);
  Let(Interior("B2"), "Color", -1);
  EXPECT_EQ(GetLong(Interior("B2"), "Color"), kWhite);
}

TEST_P(FormatsContract, AColourBeyondThreeBytesFails) {
  EXPECT_TRUE(Fails([&] { Let(Interior("B2"), "Color", 0x1000000); }));
}

TEST_P(FormatsContract, ColorIndexNamesAColourOfThePaletteOrTakesTheFillAway) {
  Let(Interior("B2:B9"), "ColorIndex", 3);
  EXPECT_EQ(GetLong(Interior("B2:B9"), "Color"), 0x0000FF);
  EXPECT_EQ(GetLong(Interior("B2:B9"), "ColorIndex"), 3);
  for (const std::int32_t none : {-4142, 0}) {
    Let(Interior("B2:B9"), "Color", 0xFF80);
    Let(Interior("B2:B9"), "ColorIndex", none);
    EXPECT_EQ(GetLong(Interior("B2:B9"), "ColorIndex"), -4142) << none;
  }
  EXPECT_TRUE(Fails([&] { Let(Interior("B2"), "ColorIndex", 57); }));
}

TEST_P(FormatsContract, TheColorIndexOfAnyColourIsThatOfTheNearest) {
  Let(Interior("B2"), "Color", 0x0302FD);
  EXPECT_EQ(GetLong(Interior("B2"), "ColorIndex"), 3);
}

// --- lines ---------------------------------------------------------------------------------------

TEST_P(FormatsContract, CellsHaveNoLinesAtFirst) {
  for (const std::int32_t index : {7, 8, 9, 10, 12}) ExpectNoLine("B2:B9", index);
}

TEST_P(FormatsContract, AWeightDrawsALineAndALineStyleToo) {
  Let(Border("B2:B9", 10), "Weight", 2);
  ExpectLine("B2:B9", 10, 1, 2);
  Let(Border("B2:B9", 9), "LineStyle", 1);
  ExpectLine("B2:B9", 9, 1, 2);
}

TEST_P(FormatsContract, AnEdgeIsThatOfTheWholeBlock) {
  Let(Border("B2:C9", 9), "LineStyle", 1);
  ExpectLine("B9", 9, 1, 2);
  ExpectLine("C9", 9, 1, 2);
  ExpectNoLine("B8", 9);
  Let(Border("B2:C9", 7), "LineStyle", 1);
  ExpectLine("B5", 7, 1, 2);
  ExpectNoLine("C5", 7);
  ExpectNoLine("C5", 10);
}

TEST_P(FormatsContract, InsideLinesPartTheRows) {
  Let(Border("B2:B4", 12), "Weight", 2);
  Let(Border("B2:B4", 12), "LineStyle", 1);
  ExpectLine("B2:B4", 12, 1, 2);
  ExpectLine("B2", 9, 1, 2);
  ExpectLine("B3", 9, 1, 2);
  ExpectNoLine("B2:B4", 8);
  ExpectNoLine("B2:B4", 9);
}

TEST_P(FormatsContract, InsideLinesOfASingleRowCantBeDrawn) {
  EXPECT_TRUE(Fails([&] { Let(Border("B2:C2", 12), "Weight", 2); }));
  EXPECT_TRUE(Fails([&] { Let(Border("B2:C2", 12), "LineStyle", 1); }));
  ExpectNoLine("B2", 8);
  ExpectNoLine("B2", 9);
}

TEST_P(FormatsContract, ADoubleLineIsThick) {
  Let(Border("B2", 9), "LineStyle", -4119);
  ExpectLine("B2", 9, -4119, 4);
  Let(Border("B2", 9), "Weight", 4);
  ExpectLine("B2", 9, -4119, 4);
}

TEST_P(FormatsContract, LinesHaveTheirWeights) {
  for (const std::int32_t weight : {1, 2, 4}) {
    Let(Border("B2", 9), "Weight", weight);
    ExpectLine("B2", 9, 1, weight);
    Let(Border("B2", 9), "LineStyle", 1);
    ExpectLine("B2", 9, 1, weight);
  }
}

TEST_P(FormatsContract, TheStyleNoneTakesALineAway) {
  Let(Border("B2:B9", 9), "LineStyle", 1);
  Let(Border("B2:B9", 9), "Weight", 1);
  Let(Border("B2:B9", 9), "LineStyle", -4142);
  ExpectNoLine("B2:B9", 9);
}

TEST_P(FormatsContract, AnIndexThatIsNoBorderFails) {
  EXPECT_TRUE(Fails([&] { Border("B2", 3); }));
  EXPECT_TRUE(Fails([&] { Border("B2", 13); }));
}

// --- columns -------------------------------------------------------------------------------------

TEST_P(FormatsContract, EntireColumnIsTheWholeColumns) {
  const Object columns = Column(Cells("B2:C9"));
  EXPECT_EQ(GetText(columns, "Address"), "$B:$C");
  EXPECT_EQ(GetLong(columns, "Count"), 2);
}

TEST_P(FormatsContract, AColumnWidthIsReadBackAsItWasWritten) {
  for (const std::int32_t width : {12, 1, 40, 255}) {
    Let(Column(Cells("B2:C9")), "ColumnWidth", width);
    EXPECT_EQ(Get(Cells("C1"), "ColumnWidth"), Variant(static_cast<double>(width)));
  }
  Let(Column(Cells("B2")), "ColumnWidth", 8.43);
  EXPECT_EQ(Get(Cells("B1"), "ColumnWidth"), Variant(8.43));
  EXPECT_EQ(Get(Cells("B1:C1"), "ColumnWidth"), Variant(Null())) << "one of 8.43 and one of 255";
}

TEST_P(FormatsContract, AColumnOfNoWidthIsHiddenUntilItHasOneAgain) {
  Let(Column(Cells("B2")), "ColumnWidth", 0);
  EXPECT_EQ(Get(Cells("B1"), "ColumnWidth"), Variant(0.0));
  Let(Column(Cells("B2")), "ColumnWidth", 10);
  EXPECT_EQ(Get(Cells("B1"), "ColumnWidth"), Variant(10.0));
}

TEST_P(FormatsContract, AWidthOutsideTheLimitsFails) {
  EXPECT_TRUE(Fails([&] { Let(Column(Cells("B2")), "ColumnWidth", -1); }));
  EXPECT_TRUE(Fails([&] { Let(Column(Cells("B2")), "ColumnWidth", 256); }));
}

TEST_P(FormatsContract, AutoFitMakesAColumnAsWideAsWhatItShows) {
  const auto fitted = [&](const char* text) {
    Let(Cells("B2"), "Value", text);
    Call(Column(Cells("B2")), "AutoFit");
    return *Get(Cells("B2"), "ColumnWidth").TryGet<double>();
  };
  const double narrow = fitted("A heading");
  const double wide = fitted("A heading of very many words in a row");
  EXPECT_LT(narrow, wide);
  EXPECT_GT(narrow, 4.0);
  EXPECT_GT(wide, 20.0);
  EXPECT_LT(wide, 60.0);
}

TEST_P(FormatsContract, AutoFitOfASingleCellFails) {
  EXPECT_TRUE(Fails([&] { Call(Cells("B2"), "AutoFit"); }));
}

TEST_P(FormatsContract, ALineIsReachedThroughTheCollectionOfBordersToo) {
  const Object borders = GetObject(Cells("B2:C3"), "Borders");
  EXPECT_EQ(borders.TypeName(), "Borders");
  Let(GetObject(borders, "Item", {excel::xlEdgeTop}), "LineStyle", excel::xlDouble);
  EXPECT_EQ(GetLong(GetObject(borders, "_Default", {excel::xlEdgeTop}), "LineStyle"),
            excel::xlDouble);
  EXPECT_TRUE(Fails([&] { Get(borders, "Item", {99}); }));
}

TEST_P(FormatsContract, LinesOfOtherStylesAndWeightsAreRefused) {
  EXPECT_TRUE(Fails([&] { Let(Border("B2", excel::xlEdgeTop), "LineStyle", 99); }));
  EXPECT_TRUE(Fails([&] { Let(Border("B2", excel::xlEdgeTop), "Weight", 99); }));
  ExpectNoLine("B2", excel::xlEdgeTop);
}

}  // namespace
}  // namespace rangewerks::tests
