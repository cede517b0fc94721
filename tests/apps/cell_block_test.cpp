#include "apps/rangewerks/cell_block.h"

#include <gtest/gtest.h>

namespace rangewerks::apps {
namespace {

/// An address read and written again.
std::string Again(const char* text) {
  const auto block = ReadAddress(text);
  return block ? Shown(*block) : "none";
}

TEST(CellBlock, AnAddressIsOneCellOrABlock) {
  const auto block = ReadAddress("B7:D30");
  ASSERT_TRUE(block);
  EXPECT_EQ(block->column, 2);
  EXPECT_EQ(block->row, 7);
  EXPECT_EQ(block->columns, 3);
  EXPECT_EQ(block->rows, 24);
  EXPECT_EQ(Again("B7"), "B7");
  EXPECT_EQ(Again("B7:B7"), "B7");
  EXPECT_EQ(Again("B7:D30"), "B7:D30");
}

TEST(CellBlock, DollarsSmallLettersAndTheOrderOfCornersMakeNoDifference) {
  EXPECT_EQ(Again("$B$7:$D$30"), "B7:D30");
  EXPECT_EQ(Again("$b7:d$30"), "B7:D30");
  EXPECT_EQ(Again("D7:B30"), "B7:D30");
  EXPECT_EQ(Again("B30:D7"), "B7:D30");
}

TEST(CellBlock, ColumnsGoOnBehindZAndEndWithTheLargestSheet) {
  EXPECT_EQ(ReadAddress("Z1")->column, 26);
  EXPECT_EQ(ReadAddress("AA1")->column, 27);
  EXPECT_EQ(ReadAddress("ZZ1")->column, 702);
  EXPECT_EQ(ReadAddress("AAA1")->column, 703);
  EXPECT_EQ(Again("AA10:AZ99"), "AA10:AZ99");
  EXPECT_EQ(Again("XFD1048576"), "XFD1048576");
  EXPECT_EQ(Again("XFE1"), "none");
  EXPECT_EQ(Again("A1048577"), "none");
  EXPECT_EQ(Again("A99999999999999999999"), "none");
  EXPECT_EQ(Again("ZZZZZZZZZZZZZZZZ1"), "none");
}

TEST(CellBlock, OtherTextsAreNoAddress) {
  for (const char* text : {"", "B", "7", "B0", "7B", "B7:", ":B7", "B7:B", "B7:B8:B9", "B7 ", "B-7",
                           "$$B7", "B$$7", "Sheet1!B7", "B:B", "7:7", "B7;B9",
                           "\xC3\x84"
                           "7"}) {
    EXPECT_FALSE(ReadAddress(text)) << text;
  }
}

TEST(CellBlock, BlocksOverlapInACellAndNotInAnEdge) {
  const auto overlap = [](const char* first, const char* second) {
    return Overlap(*ReadAddress(first), *ReadAddress(second));
  };
  EXPECT_TRUE(overlap("B7:B30", "B30:B31"));
  EXPECT_TRUE(overlap("B7:D9", "C8"));
  EXPECT_TRUE(overlap("C8", "B7:D9"));
  EXPECT_FALSE(overlap("B7:B30", "B31"));
  EXPECT_FALSE(overlap("B7:B30", "C7:C30"));
  EXPECT_FALSE(overlap("B6", "B7:B30"));
}

}  // namespace
}  // namespace rangewerks::apps
