// Values where LibreOffice keeps them otherwise than the object model tells them.
#include <gtest/gtest.h>

#include "hosts/libreoffice_documents.h"
#include "hosts/libreoffice_under_test.h"

namespace rangewerks::tests {
namespace {

using automation::Array;
using automation::Date;
using automation::ErrorValue;

constexpr double kLastDayOfJanuary2024 = 45322;

class LibreOfficeValues : public testing::Test {
 protected:
  LibreOfficeValues()
      : book_(SharedOffice().NewWorkbook({"Sheet1"})), sheet_(GetObject(book_, "ActiveSheet")) {}
  ~LibreOfficeValues() override { SharedOffice().Close(book_); }

  Object Cells(const char* address) { return GetObject(sheet_, "Range", {address}); }
  Variant ValueOf(const char* address) { return Get(Cells(address), "Value"); }
  /// What an untouched cell shows after the formula has been entered.
  Variant ShownBy(const char* formula) {
    const Object cell = GetObject(sheet_, "Cells", {++used_, 26});
    Let(cell, "Formula", formula);
    return Get(cell, "Value");
  }

  Object book_;
  Object sheet_;

 private:
  std::int32_t used_ = 0;
};

TEST_F(LibreOfficeValues, EveryErrorHasItsNumber) {
  for (const auto& [formula, number] :
       {std::pair{"=1/0", 2007}, std::pair{"=NA()", 2042}, std::pair{"=nosuchname", 2029},
        std::pair{"=\"a\"+1", 2015}, std::pair{"=10^400", 2036}, std::pair{"=#REF!", 2023},
        std::pair{"=#NULL!", 2000}, std::pair{"=#DIV/0!", 2007}}) {
    EXPECT_EQ(ShownBy(formula), Variant(ErrorValue::FromNumber(number))) << formula;
  }
}

TEST_F(LibreOfficeValues, AnErrorOrABooleanThatIsEnteredIsNoFormula) {
  Let(Cells("A1"), "Value", true);
  Let(Cells("A2"), "Value", ErrorValue::FromNumber(2042));
  EXPECT_EQ(ValueOf("A2"), Variant(ErrorValue::FromNumber(2042)));
  EXPECT_EQ(Get(Cells("A1:A2"), "HasFormula"), Variant(false));
  EXPECT_EQ(GetText(Cells("A1"), "Formula"), "TRUE");
  EXPECT_EQ(GetText(Cells("A2"), "Formula"), "#N/A");
}

TEST_F(LibreOfficeValues, AFormulaShowsABooleanOrADateAsSuch) {
  EXPECT_EQ(ShownBy("=1=1"), Variant(true));
  EXPECT_EQ(ShownBy("=DATE(2024,1,31)"), Variant(Date{kLastDayOfJanuary2024}));
  EXPECT_EQ(ShownBy("=TIME(12,0,0)"), Variant(Date{0.5}));
  EXPECT_EQ(ShownBy("=2*3"), Variant(6.0));
  EXPECT_EQ(ShownBy("=IF(1>2,TRUE,FALSE)"), Variant(false));
}

TEST_F(LibreOfficeValues, ANumberAfterABooleanIsANumberAgain) {
  Let(Cells("A1"), "Formula", "=1=1");
  EXPECT_EQ(ValueOf("A1"), Variant(true));
  Let(Cells("A1"), "Value", 1.0);
  EXPECT_EQ(ValueOf("A1"), Variant(1.0));
  Let(Cells("A1"), "Formula", "=2-1");
  EXPECT_EQ(ValueOf("A1"), Variant(1.0));
}

TEST_F(LibreOfficeValues, ABlockOfMixedFormatsIsReadAsItsCellsAre) {
  Let(Cells("A1"), "Value", 1.5);
  Let(Cells("B1"), "Value", Date{kLastDayOfJanuary2024});
  Let(Cells("A2"), "Value", Date{0.25});
  Let(Cells("B2"), "Value", "5%");
  Let(Cells("A3"), "Value", true);
  Let(Cells("B3"), "Formula", "=DATE(2024,1,31)");
  Let(Cells("A4"), "Formula", "=\"\"");
  Let(Cells("B4"), "Value", "'007");
  Array expected(5, 2);
  expected.At(1, 1) = 1.5;
  expected.At(1, 2) = Date{kLastDayOfJanuary2024};
  expected.At(2, 1) = Date{0.25};
  expected.At(2, 2) = 0.05;
  expected.At(3, 1) = true;
  expected.At(3, 2) = Date{kLastDayOfJanuary2024};
  expected.At(4, 1) = "";
  expected.At(4, 2) = "007";
  const Array block = Get(Cells("A1:B5"), "Value").AsArray();
  for (std::int32_t row = 1; row <= 5; ++row) {
    for (std::int32_t column = 1; column <= 2; ++column) {
      EXPECT_EQ(block.At(row, column), expected.At(row, column)) << row << ", " << column;
      EXPECT_EQ(Get(GetObject(Cells("A1:B5"), "Cells", {row, column}), "Value"),
                expected.At(row, column))
          << row << ", " << column;
    }
  }
}

TEST_F(LibreOfficeValues, DatesOfADocumentThatCountsFrom1904AreTheSameDays) {
  CountFrom1904(book_);
  Let(Cells("A1"), "Value", Date{kLastDayOfJanuary2024});
  EXPECT_EQ(ValueOf("A1"), Variant(Date{kLastDayOfJanuary2024}));
  EXPECT_EQ(GetText(Cells("A1"), "Formula"), "43860") << "1462 days less";
}

TEST_F(LibreOfficeValues, ATextKeptByAnApostropheLeavesTheFormatOfTheCell) {
  Let(Cells("A1"), "Value", "'007");
  EXPECT_EQ(ValueOf("A1"), Variant("007"));
  EXPECT_EQ(GetText(Cells("A1"), "NumberFormat"), "General");
  Let(Cells("A1"), "Value", 5.0);
  EXPECT_EQ(ValueOf("A1"), Variant(5.0));
}

TEST_F(LibreOfficeValues, TextsThatLookLikeEntriesComeBackUnchanged) {
  Let(Cells("A1:A9"), "NumberFormat", "@");
  for (const char* text : {"=1+1", "'quoted", "''twice", "1/2/2024", "TRUE", "two\nlines", "\t"}) {
    Let(Cells("A1"), "Value", text);
    EXPECT_EQ(ValueOf("A1"), Variant(text));
    EXPECT_EQ(Get(Cells("A1"), "HasFormula"), Variant(false));
    Let(Cells("A2:A3"), "Value", text);
    EXPECT_EQ(Get(Cells("A2:A3"), "Value").AsArray().At(2, 1), Variant(text));
  }
}

TEST_F(LibreOfficeValues, AnArrayMayHoldFormulasErrorsAndBooleans) {
  Array block(2, 2);
  block.At(1, 1) = "=1+1";
  block.At(1, 2) = ErrorValue::FromNumber(2007);
  block.At(2, 1) = true;
  block.At(2, 2) = "12";
  Let(Cells("A1:B2"), "Value", block);
  EXPECT_EQ(GetText(Cells("A1"), "Formula"), "=1+1");
  EXPECT_EQ(ValueOf("B1"), Variant(ErrorValue::FromNumber(2007)));
  EXPECT_EQ(ValueOf("A2"), Variant(true));
  EXPECT_EQ(ValueOf("B2"), Variant(12.0));
}

TEST_F(LibreOfficeValues, FormulasAreInTheObjectModelsNotation) {
  for (const char* formula : {"=SUM(B1,C1)", "=Sheet1!$B$1", "=IF(B1>1,\"a,b\",1.5)", "=B1:C2"}) {
    Let(Cells("A1"), "Formula", formula);
    EXPECT_EQ(GetText(Cells("A1"), "Formula"), formula);
  }
}

TEST_F(LibreOfficeValues, WhatIsNoFormulaIsRefusedAndLeavesTheCell) {
  Let(Cells("A1"), "Value", 5.0);
  for (const char* formula : {"=1+", "=Nowhere!A1", "=IFERROR(#N/A,1)"}) {
    EXPECT_EQ(ErrorNumberOf([&] { Let(Cells("A1"), "Formula", formula); }), 1004) << formula;
    EXPECT_EQ(ValueOf("A1"), Variant(5.0)) << formula;
  }
}

TEST_F(LibreOfficeValues, LockedCellsOfAProtectedSheetCantBeChanged) {
  Let(Cells("A1"), "Value", 1.0);
  Unlock(Cells("B1"));
  Protect(book_, 1);
  for (const char* locked : {"A1", "A1:B1"}) {
    EXPECT_EQ(ErrorNumberOf([&] { Let(Cells(locked), "Value", 2.0); }), 1004) << locked;
    EXPECT_EQ(ErrorNumberOf([&] { Call(Cells(locked), "ClearContents"); }), 1004) << locked;
    EXPECT_EQ(ErrorNumberOf([&] { Let(Cells(locked), "NumberFormat", "0.00"); }), 1004) << locked;
  }
  EXPECT_EQ(ValueOf("A1"), Variant(1.0));
  Let(Cells("B1"), "Value", 2.0);
  EXPECT_EQ(ValueOf("B1"), Variant(2.0));
}

TEST_F(LibreOfficeValues, HasFormulaOfColumnsThatWereNeverUsedIsFalse) {
  Let(Cells("A1"), "Formula", "=1+1");
  EXPECT_EQ(Get(Cells("XFA1:XFD2"), "HasFormula"), Variant(false));
}

}  // namespace
}  // namespace rangewerks::tests
