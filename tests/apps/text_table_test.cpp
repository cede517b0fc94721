#include "apps/rangewerks/text_table.h"

#include <gtest/gtest.h>

namespace rangewerks::apps {
namespace {

TEST(TextTable, AlignsColumnsUnderTheirHeadings) {
  TextTable table({{"row", Align::Right}, {"code"}, {"amount", Align::Decimal}});
  table.Add({"1", "4000", "12.50"});
  table.Add({"20", "é", "-1250.125"});
  table.Add({"300", "", "7"});
  EXPECT_EQ(table.Render("  "),
            "  row  code     amount\n"
            "  ───  ────  ─────────\n"
            "    1  4000     12.50\n"
            "   20  é     -1250.125\n"
            "  300            7\n");
}

TEST(TextTable, AWordInAColumnOfNumbersStandsRight) {
  TextTable table({{"amount", Align::Decimal}});
  table.Add({"1.25"});
  table.Add({"!1"});
  table.Add({""});
  EXPECT_EQ(table.Render(""), "amount\n──────\n  1.25\n    !1\n\n");
}

TEST(TextTable, WithoutHeadingsHasNoRule) {
  TextTable table({{}, {}});
  table.Add({"batch", "17"});
  table.Add({"date"});
  EXPECT_EQ(table.Render("> "), "> batch  17\n> date\n");
}

TEST(OneLine, MakesControlCharactersVisible) {
  EXPECT_EQ(OneLine("a\nb\tc\rd\x1b[0m\x7f", 40), "a\\nb\\tc\\rd\\x1B[0m\\x7F");
}

TEST(OneLine, CutsWhatIsTooLongAndSaysSo) {
  EXPECT_EQ(OneLine("äöüß", 4), "äöüß");
  EXPECT_EQ(OneLine("äöüßx", 4), "äöü…");
}

}  // namespace
}  // namespace rangewerks::apps
