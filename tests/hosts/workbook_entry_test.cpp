// What a value becomes when it is assigned to a cell of the workbook in memory.
#include <gtest/gtest.h>

#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"

namespace rangewerks::tests {
namespace {

using automation::Array;
using automation::Date;
using automation::ErrorValue;
using automation::Locale;
using automation::Null;
using hosts::workbook::Host;

constexpr std::int32_t kRefused = 1004;
constexpr std::int32_t kDecimalSeparator = 3;
constexpr std::int32_t kThousandsSeparator = 4;
constexpr std::int32_t kDateSeparator = 17;
constexpr std::int32_t kDateOrder = 32;

class WorkbookEntry : public testing::Test {
 protected:
  WorkbookEntry() { sheet_ = GetObject(host_.AddWorkbook("Book", {"Sheet1"}), "ActiveSheet"); }

  Object Cells(const char* address) { return GetObject(sheet_, "Range", {address}); }
  /// What a fresh cell holds after the value has been assigned.
  Variant Entered(const Variant& value) {
    const Object cell = GetObject(sheet_, "Cells", {++row_, 1});
    Let(cell, "Value", value);
    return Get(cell, "Value");
  }
  void UseGermanLocale() {
    host_.SetInternational(kDecimalSeparator, ",");
    host_.SetInternational(kThousandsSeparator, ".");
    host_.SetInternational(kDateSeparator, ".");
    host_.SetInternational(kDateOrder, 1);
  }

  Host host_;
  Object sheet_;
  std::int32_t row_ = 0;
};

struct Typed {
  const char* text;
  Variant value;
};

TEST_F(WorkbookEntry, ReadsATextAsTyped) {
  const Typed entries[] = {
      {"12", 12.0},
      {" 12 ", 12.0},
      {"+12", 12.0},
      {"-12.5", -12.5},
      {".5", 0.5},
      {"5.", 5.0},
      {"(3)", -3.0},
      {"$12", 12.0},
      {"-$12", -12.0},
      {"1,234", 1234.0},
      {"1,234,567.89", 1234567.89},
      {"1e3", 1000.0},
      {"1E-2", 0.01},
      {"0.1", 0.1},
      {"5%", 0.05},
      {"TRUE", true},
      {"false", false},
      {"#N/A", ErrorValue::FromNumber(2042)},
      {"#div/0!", ErrorValue::FromNumber(2007)},
      {"1/31/2024", Date{45322}},
      {"2024-01-31", Date{45322}},
      {"31 Jan 2024", Date{45322}},
      {"12:00", Date{0.5}},
      {"'12", "12"},
      {"'=1+1", "=1+1"},
      {"'", Variant()},
  };
  for (const auto& [text, value] : entries) EXPECT_EQ(Entered(text), value) << text;
}

TEST_F(WorkbookEntry, LeavesATextThatReadsAsNothingElse) {
  for (const char* text :
       {"Y",        "No",       "12abc",      "1,23",     "1,2345", "1234,567", "--1",    "1-",
        "5-",       "()",       "%",          "$",        "&H10",   "1d5",      "1e",     "1.2.3",
        "1.2.2024", "1 1/2",    "29/02/2021", "1/1/1850", "+A1",    "=",        " ",      "1_000",
        "12-",      "infinity", "nan",        "inf",      "0x10",   "N/A",      "2024 Q1"}) {
    EXPECT_EQ(Entered(text), Variant(text)) << text;
  }
}

TEST_F(WorkbookEntry, ReadsATextByTheLocaleOfTheHost) {
  UseGermanLocale();
  const Typed entries[] = {
      {"12,5", 12.5},
      {"1.234,5", 1234.5},
      {"1.005", 1005.0},
      {"31.1.2024", Date{45322}},
      {"1.2.2024", Date{45323}},
      {"1,234,567", "1,234,567"},
  };
  for (const auto& [text, value] : entries) EXPECT_EQ(Entered(text), value) << text;
  EXPECT_EQ(Entered("12.5").TypeName(), "Date") << "12 May of this year";
}

TEST_F(WorkbookEntry, KeepsOtherKinds) {
  EXPECT_EQ(Entered(true), Variant(true));
  EXPECT_EQ(Entered(Date{45322.25}), Variant(Date{45322.25}));
  EXPECT_EQ(Entered(ErrorValue::FromNumber(2042)), Variant(ErrorValue::FromNumber(2042)));
  EXPECT_EQ(Entered(std::int32_t{5}), Variant(5.0));
  EXPECT_TRUE(Entered(Null()).IsEmpty());
}

TEST_F(WorkbookEntry, RefusesWhatACellCanNotHoldAndLeavesTheCell) {
  Let(Cells("B1"), "Value", "kept");
  const std::string tooLong(32768, 'x');
  for (const Variant& value : {Variant(Date{-1}), Variant(tooLong), Variant(1e308 * 10)}) {
    EXPECT_EQ(ErrorNumberOf([&] { Let(Cells("B1"), "Value", value); }), kRefused)
        << value.TypeName();
    EXPECT_EQ(Get(Cells("B1"), "Value"), Variant("kept"));
  }
}

TEST_F(WorkbookEntry, KeepsATextOfTheGreatestLength) {
  const std::string longest(32767, 'x');
  EXPECT_EQ(Entered(longest), Variant(longest));
}

TEST_F(WorkbookEntry, KeepsTextAndNumbersAsTextUnderTheTextFormat) {
  Let(Cells("B1:B4"), "NumberFormat", "@");
  const Typed entries[] = {{"B1", "007"}, {"B2", "=1+1"}, {"B3", "TRUE"}};
  for (const auto& [address, value] : entries) {
    Let(Cells(address), "Value", value);
    EXPECT_EQ(Get(Cells(address), "Value"), value);
    EXPECT_EQ(Get(Cells(address), "HasFormula"), Variant(false));
  }
  Let(Cells("B4"), "Value", 12.5);
  EXPECT_EQ(Get(Cells("B4"), "Value"), Variant("12.5"));
}

TEST_F(WorkbookEntry, TellsADateByTheNumberFormat) {
  Let(Cells("B1"), "Value", 45322.0);
  Let(Cells("B1"), "NumberFormat", "yyyy-mm-dd");
  EXPECT_EQ(Get(Cells("B1"), "Value"), Variant(Date{45322}));
  for (const char* format : {"0.00", "General", "\"days\" 0", "[Red]0", "\\d0", ""}) {
    Let(Cells("B1"), "NumberFormat", format);
    EXPECT_EQ(Get(Cells("B1"), "Value"), Variant(45322.0)) << format;
  }
}

TEST_F(WorkbookEntry, BringsAFormatAlongForADateOrAPercentage) {
  const Typed entries[] = {{"1/31/2024", "m/d/yyyy"}, {"1/31/2024 12:00", "m/d/yyyy h:mm"},
                           {"12:00", "h:mm:ss"},      {"5%", "0%"},
                           {"5.5%", "0.00%"},         {"12", "General"}};
  for (const auto& [text, format] : entries) {
    Entered(text);
    EXPECT_EQ(Get(GetObject(sheet_, "Cells", {row_, 1}), "NumberFormat"), format) << text;
  }
}

TEST_F(WorkbookEntry, TellsTheFormatOfABlockOnlyWhenAllCellsShareIt) {
  Let(Cells("B1:B3"), "NumberFormat", "0.00");
  EXPECT_EQ(Get(Cells("B1:B3"), "NumberFormat"), Variant("0.00"));
  EXPECT_TRUE(Get(Cells("B1:B4"), "NumberFormat").IsNull());
  EXPECT_TRUE(Get(Cells("A1:B1"), "NumberFormat").IsNull());
  EXPECT_EQ(Get(Cells("C1:C9"), "NumberFormat"), Variant("General"));
}

TEST_F(WorkbookEntry, TellsTheContentAsEnteredInEnglishNotation) {
  UseGermanLocale();
  const Typed entries[] = {{"1234,5", "1234.5"},   {"true", "TRUE"}, {"#n/a", "#N/A"},
                           {"31.1.2024", "45322"}, {"abc", "abc"},   {"'007", "007"},
                           {"=1+1", "=1+1"}};
  for (const auto& [text, formula] : entries) {
    Entered(text);
    EXPECT_EQ(Get(GetObject(sheet_, "Cells", {row_, 1}), "Formula"), formula) << text;
  }
}

TEST_F(WorkbookEntry, ReadsAnAssignmentToFormulaInEnglishNotation) {
  UseGermanLocale();
  Let(Cells("B1"), "Formula", "12.5");
  EXPECT_EQ(Get(Cells("B1"), "Value"), Variant(12.5));
}

TEST_F(WorkbookEntry, ShowsNothingForAFormulaUntilItIsTold) {
  Let(Cells("B1"), "Value", "=A1*2");
  EXPECT_TRUE(Get(Cells("B1"), "Value").IsEmpty());
  host_.SetShownValue(Cells("B1"), 25.0);
  EXPECT_EQ(Get(Cells("B1"), "Value"), Variant(25.0));
  EXPECT_EQ(Get(Cells("B1"), "Formula"), Variant("=A1*2"));
}

TEST_F(WorkbookEntry, RepeatsASingleRowOrColumnAndFillsTheRestWithNotAvailable) {
  Array row(1, 2);
  row.At(1, 1) = 1.0;
  row.At(1, 2) = 2.0;
  Let(Cells("B1:C2"), "Value", row);
  EXPECT_EQ(Get(Cells("B2"), "Value"), Variant(1.0));
  EXPECT_EQ(Get(Cells("C2"), "Value"), Variant(2.0));

  Array square(2, 2);
  square.At(1, 1) = 1.0;
  Let(Cells("E1:G2"), "Value", square);
  EXPECT_EQ(Get(Cells("E1"), "Value"), Variant(1.0));
  EXPECT_EQ(Get(Cells("G1"), "Value"), Variant(ErrorValue::FromNumber(2042)));
}

TEST_F(WorkbookEntry, TakesTheValueOfAnObject) {
  Let(Cells("B1"), "Value", 12.5);
  EXPECT_EQ(Entered(Cells("B1")), Variant(12.5));
}

}  // namespace
}  // namespace rangewerks::tests
