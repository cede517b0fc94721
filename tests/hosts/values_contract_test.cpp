// What cells hold: values of every kind, formulas, errors, blocks, clearing.
#include "hosts/contract.h"

namespace rangewerks::tests {
namespace {

using automation::Array;
using automation::Date;
using automation::ErrorValue;
using automation::Kind;

constexpr std::int32_t kDivisionByZero = 2007;
constexpr std::int32_t kNotAvailable = 2042;
constexpr double kLastDayOfJanuary2024 = 45322;

class ValuesContract : public HostContract {
 protected:
  /// What the cell A1 holds after `value` has been written to it.
  Variant Written(const Variant& value) {
    Let(Cells("A1"), "Value", value);
    return Get(Cells("A1"), "Value");
  }
};
CONTRACT_FOR_ALL_HOSTS(ValuesContract);

// --- kinds ---------------------------------------------------------------------------------------

TEST_P(ValuesContract, AnUntouchedCellIsEmpty) {
  EXPECT_TRUE(Get(Cells("A1"), "Value").IsEmpty());
  EXPECT_EQ(GetText(Cells("A1"), "Formula"), "");
  EXPECT_EQ(Get(Cells("A1"), "HasFormula"), Variant(false));
}

TEST_P(ValuesContract, ANumberComesBackAsExactlyThatNumber) {
  for (const double number :
       {12.5, 0.0, -1.0, 0.1, 1.0 / 3, 123456789.12, 1e-7, 9007199254740991.0}) {
    EXPECT_EQ(Written(number), Variant(number)) << number;
  }
}

TEST_P(ValuesContract, AnIntegerComesBackAsADouble) {
  EXPECT_EQ(Written(std::int32_t{70000}), Variant(70000.0));
  EXPECT_EQ(Written(std::int16_t{-7}), Variant(-7.0));
}

TEST_P(ValuesContract, ATextComesBackUnchanged) {
  for (const char* text : {"Y", "abc", "  two blanks around  ", "a\"b", "Zo\xC3\xAB", "12abc"}) {
    EXPECT_EQ(Written(text), Variant(text)) << text;
  }
}

TEST_P(ValuesContract, ATextThatReadsAsANumberBecomesOne) {
  EXPECT_EQ(Written("12"), Variant(12.0));
  EXPECT_EQ(Written("007"), Variant(7.0));
}

TEST_P(ValuesContract, ATextInATextFormattedCellStaysText) {
  Let(Cells("A1"), "NumberFormat", "@");
  EXPECT_EQ(Written("007"), Variant("007"));
}

TEST_P(ValuesContract, TrueAndFalseComeBackAsBooleans) {
  EXPECT_EQ(Written(true), Variant(true));
  EXPECT_EQ(Written(false), Variant(false));
}

TEST_P(ValuesContract, ADateIsToldFromANumber) {
  EXPECT_EQ(Written(Date{kLastDayOfJanuary2024}), Variant(Date{kLastDayOfJanuary2024}));
  Let(Cells("B1"), "Value", kLastDayOfJanuary2024);
  EXPECT_EQ(Get(Cells("B1"), "Value"), Variant(kLastDayOfJanuary2024));
}

TEST_P(ValuesContract, ADateKeepsItsTimeOfDay) {
  EXPECT_EQ(Written(Date{kLastDayOfJanuary2024 + 0.75}),
            Variant(Date{kLastDayOfJanuary2024 + 0.75}));
}

TEST_P(ValuesContract, AnErrorIsAValue) {
  host_->PutError(Cells("A1"), kDivisionByZero);
  host_->PutError(Cells("A2"), kNotAvailable);
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant(ErrorValue::FromNumber(kDivisionByZero)));
  EXPECT_EQ(Get(Cells("A2"), "Value"), Variant(ErrorValue::FromNumber(kNotAvailable)));
}

TEST_P(ValuesContract, AnEmptyTextAndEmptyBothLeaveTheCellEmpty) {
  Let(Cells("A1"), "Value", "x");
  EXPECT_TRUE(Written("").IsEmpty());
  Let(Cells("A1"), "Value", "x");
  EXPECT_TRUE(Written(Variant()).IsEmpty());
}

TEST_P(ValuesContract, TheDefaultMemberIsTheValue) {
  Let(Cells("A1"), "_Default", 12.5);
  EXPECT_EQ(Get(Cells("A1"), "_Default"), Variant(12.5));
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant(12.5));
}

// --- formulas ------------------------------------------------------------------------------------

TEST_P(ValuesContract, AFormulaShowsItsValueAndKeepsItsText) {
  host_->PutFormula(Cells("A1"), "=1+1", 2.0);
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant(2.0));
  EXPECT_EQ(GetText(Cells("A1"), "Formula"), "=1+1");
  EXPECT_EQ(Get(Cells("A1"), "HasFormula"), Variant(true));
}

TEST_P(ValuesContract, AFormulaMayShowAText) {
  host_->PutFormula(Cells("A1"), "=\"a\"&\"b\"", "ab");
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant("ab"));
}

TEST_P(ValuesContract, AFormulaMayShowAnEmptyTextWhichIsNotAnEmptyCell) {
  host_->PutFormula(Cells("A1"), "=\"\"", "");
  EXPECT_EQ(Get(Cells("A1"), "HasFormula"), Variant(true));
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant(""));
}

TEST_P(ValuesContract, ATextThatBeginsWithAnEqualsSignIsAFormula) {
  Let(Cells("A1"), "Value", "=1+1");
  EXPECT_EQ(Get(Cells("A1"), "HasFormula"), Variant(true));
  EXPECT_EQ(GetText(Cells("A1"), "Formula"), "=1+1");
}

TEST_P(ValuesContract, AWriteOverAFormulaReplacesIt) {
  host_->PutFormula(Cells("A1"), "=1+1", 2.0);
  EXPECT_EQ(Written(5.0), Variant(5.0));
  EXPECT_EQ(Get(Cells("A1"), "HasFormula"), Variant(false));
}

TEST_P(ValuesContract, HasFormulaOverAMixedBlockIsNull) {
  Let(Cells("A1"), "Value", 1.0);
  host_->PutFormula(Cells("A2"), "=1+1", 2.0);
  EXPECT_TRUE(Get(Cells("A1:A2"), "HasFormula").IsNull());
  EXPECT_TRUE(Get(Cells("A2:A3"), "HasFormula").IsNull()) << "an empty cell has no formula";
}

TEST_P(ValuesContract, HasFormulaOverABlockOfOneSortIsABoolean) {
  host_->PutFormula(Cells("A1"), "=1+1", 2.0);
  host_->PutFormula(Cells("A2"), "=1+1", 2.0);
  EXPECT_EQ(Get(Cells("A1:A2"), "HasFormula"), Variant(true));
  EXPECT_EQ(Get(Cells("B1:B2"), "HasFormula"), Variant(false));
}

TEST_P(ValuesContract, TheFormulaOfAConstantIsItsTextWithADecimalPoint) {
  Let(Cells("A1"), "Value", 12.5);
  Let(Cells("A2"), "Value", "abc");
  EXPECT_EQ(GetText(Cells("A1"), "Formula"), "12.5");
  EXPECT_EQ(GetText(Cells("A2"), "Formula"), "abc");
}

// --- blocks --------------------------------------------------------------------------------------

TEST_P(ValuesContract, TheValueOfABlockIsAnArrayOfItsRowsAndColumns) {
  Let(Cells("A1"), "Value", 1.5);
  Let(Cells("B2"), "Value", "x");
  Let(Cells("A2"), "Value", Date{kLastDayOfJanuary2024});
  host_->PutError(Cells("B3"), kDivisionByZero);
  Array expected(3, 2);
  expected.At(1, 1) = 1.5;
  expected.At(2, 1) = Date{kLastDayOfJanuary2024};
  expected.At(2, 2) = "x";
  expected.At(3, 2) = ErrorValue::FromNumber(kDivisionByZero);
  EXPECT_EQ(Get(Cells("A1:B3"), "Value"), Variant(expected));
}

TEST_P(ValuesContract, OneValueFillsABlock) {
  Let(Cells("A1:B2"), "Value", 7.0);
  for (const char* cell : {"A1", "A2", "B1", "B2"}) {
    EXPECT_EQ(Get(Cells(cell), "Value"), Variant(7.0)) << cell;
  }
  EXPECT_TRUE(Get(Cells("A3"), "Value").IsEmpty());
}

TEST_P(ValuesContract, AnArrayIsWrittenElementByElement) {
  Array block(2, 2);
  block.At(1, 1) = 1.0;
  block.At(1, 2) = "Y";
  block.At(2, 1) = Date{kLastDayOfJanuary2024};
  Let(Cells("A1:B2"), "Value", block);
  EXPECT_EQ(Get(Cells("A1"), "Value"), Variant(1.0));
  EXPECT_EQ(Get(Cells("B1"), "Value"), Variant("Y"));
  EXPECT_EQ(Get(Cells("A2"), "Value"), Variant(Date{kLastDayOfJanuary2024}));
  EXPECT_TRUE(Get(Cells("B2"), "Value").IsEmpty());
}

// --- clearing ------------------------------------------------------------------------------------

TEST_P(ValuesContract, ClearContentsClearsValuesAndFormulas) {
  Let(Cells("A1"), "Value", 1.0);
  host_->PutFormula(Cells("A2"), "=1+1", 2.0);
  Let(Cells("A4"), "Value", "beyond");
  Call(Cells("A1:A3"), "ClearContents");
  EXPECT_TRUE(Get(Cells("A1"), "Value").IsEmpty());
  EXPECT_TRUE(Get(Cells("A2"), "Value").IsEmpty());
  EXPECT_EQ(Get(Cells("A2"), "HasFormula"), Variant(false));
  EXPECT_EQ(Get(Cells("A4"), "Value"), Variant("beyond"));
}

TEST_P(ValuesContract, ClearContentsLeavesTheFormat) {
  Let(Cells("A1"), "NumberFormat", "@");
  Let(Cells("A1"), "Value", "001");
  Call(Cells("A1"), "ClearContents");
  EXPECT_EQ(Written("007"), Variant("007"));
}

TEST_P(ValuesContract, ClearContentsLeavesTheName) {
  Let(Cells("A1"), "Name", "Code");
  Call(Cells("A1"), "ClearContents");
  EXPECT_EQ(GetText(Cells("Code"), "Address"), "$A$1");
}

}  // namespace
}  // namespace rangewerks::tests
