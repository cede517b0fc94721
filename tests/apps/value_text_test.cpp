#include "apps/rangewerks/value_text.h"

#include <gtest/gtest.h>

#include <limits>

#include "automation/conversions.h"

namespace rangewerks::apps {
namespace {

TEST(NumberText, HasTheFewestDigitsThatReadBackTheSame) {
  EXPECT_EQ(NumberText(12.5), "12.5");
  EXPECT_EQ(NumberText(1250), "1250");
  EXPECT_EQ(NumberText(0.1), "0.1");
  EXPECT_EQ(NumberText(-0.07), "-0.07");
  EXPECT_EQ(NumberText(0), "0");
  EXPECT_EQ(NumberText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(NumberText(999999999999999), "999999999999999");
}

TEST(NumberText, HasAnExponentWhenItIsVeryGreatOrSmall) {
  EXPECT_EQ(NumberText(1e15), "1e+15");
  EXPECT_EQ(NumberText(1e20), "1e+20");
  EXPECT_EQ(NumberText(2.5e-7), "2.5e-07");
  EXPECT_EQ(NumberText(0.000001), "0.000001");
  EXPECT_EQ(std::stod(NumberText(std::numeric_limits<double>::max())),
            std::numeric_limits<double>::max());
}

TEST(ValueText, WritesEachKindWithoutALocale) {
  EXPECT_EQ(ValueText(1234.5), "1234.5");
  EXPECT_EQ(ValueText(std::int16_t{-7}), "-7");
  EXPECT_EQ(ValueText(automation::DateOf(2024, 2, 29)), "2024-02-29");
  EXPECT_EQ(ValueText(true), "true");
  EXPECT_EQ(ValueText(false), "false");
  EXPECT_EQ(ValueText(" as it is "), " as it is ");
  EXPECT_EQ(ValueText({}), "");
}

TEST(CellErrorText, IsWhatASpreadsheetShows) {
  EXPECT_EQ(CellErrorText(2000), "#NULL!");
  EXPECT_EQ(CellErrorText(2007), "#DIV/0!");
  EXPECT_EQ(CellErrorText(2015), "#VALUE!");
  EXPECT_EQ(CellErrorText(2023), "#REF!");
  EXPECT_EQ(CellErrorText(2029), "#NAME?");
  EXPECT_EQ(CellErrorText(2036), "#NUM!");
  EXPECT_EQ(CellErrorText(2042), "#N/A");
  EXPECT_EQ(CellErrorText(2050), "error value 2050");
}

TEST(ErrorNumberText, ShowsAnHresultInHexToo) {
  EXPECT_EQ(ErrorNumberText(6), "6");
  EXPECT_EQ(ErrorNumberText(-2147216004), "-2147216004 (0x8004157C)");
  EXPECT_EQ(ErrorNumberText(-1), "-1 (0xFFFFFFFF)");
}

}  // namespace
}  // namespace rangewerks::apps
