// What cells have of one thing, held to a plain table of cells.
#include <gmock/gmock.h>

#include <array>
#include <random>

#include "hosts/workbook/area_values.h"

namespace rangewerks::tests {
namespace {

using hosts::Area;
using hosts::Position;
using hosts::workbook::AreaValues;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr std::int32_t kSize = 8;

TEST(AreaValues, TellOneValueForAllCellsOnlyWhenTheyAgree) {
  AreaValues<int> values;
  const auto self = [](int value) { return value; };
  EXPECT_EQ(values.Common({1, 1, 9, 9}, self), 0);
  values.Set({2, 2, 3, 3}, 5);
  EXPECT_EQ(values.Common({2, 2, 3, 3}, self), 5);
  EXPECT_EQ(values.Common({2, 2, 4, 3}, self), std::nullopt);
  EXPECT_EQ(values.Common({2, 2, 3, 4}, self), std::nullopt);
  EXPECT_EQ(values.Common({1, 1, 1, 9}, self), 0);
}

TEST(AreaValues, AreTheSameBlocksWhateverTheirHistory) {
  AreaValues<int> values;
  values.Set({5, 2}, 7);
  values.Set({3, 2}, 7);
  values.Set({4, 2}, 7);
  values.Set({3, 3, 5, 1}, 7);
  values.Set({6, 3, 2, 1}, 0);
  EXPECT_THAT(values.Blocks(), ElementsAre(Pair(Area{3, 2, 3, 2}, 7)));
  values.Set({1, 1, 9, 9}, 0);
  EXPECT_THAT(values.Blocks(), IsEmpty());
  EXPECT_TRUE(values.IsEmpty());
}

TEST(AreaValues, AreThoseOfAPlainTableAfterAnyChanges) {
  std::mt19937 random(20240131);
  const auto upTo = [&random](std::int32_t most) {
    return static_cast<std::int32_t>(random() % static_cast<unsigned>(most));
  };
  AreaValues<int> values;
  std::array<std::array<int, kSize>, kSize> table{};
  for (int step = 0; step < 2000; ++step) {
    Area area{1 + upTo(kSize), 1 + upTo(kSize)};
    area.rows = 1 + upTo(kSize - area.row + 1);
    area.columns = 1 + upTo(kSize - area.column + 1);
    const int added = upTo(3);
    const auto change = [added](int& value) { value = (value + added) % 3; };
    values.Change(area, change);

    bool any = false;
    for (std::int32_t row = 1; row <= kSize; ++row) {
      for (std::int32_t column = 1; column <= kSize; ++column) {
        int& cell =
            table.at(static_cast<std::size_t>(row - 1)).at(static_cast<std::size_t>(column - 1));
        const bool isInside = area.Contains({row, column});
        if (isInside) change(cell);
        any = any || (isInside && cell != 0);
        ASSERT_EQ(values.At({row, column}), cell) << "step " << step;
      }
    }
    ASSERT_EQ(values.Any(area), any) << "step " << step;

    AreaValues<int> again;  // the blocks are all there is, and don't overlap
    std::int64_t cells = 0;
    for (const auto& [block, value] : values.Blocks()) {
      again.Set(block, value);
      cells += block.Count();
    }
    ASSERT_EQ(again.Blocks(), values.Blocks()) << "step " << step;
    std::int64_t filled = 0;
    for (const auto& row : table) filled += kSize - std::ranges::count(row, 0);
    ASSERT_EQ(cells, filled) << "step " << step;
  }
}

}  // namespace
}  // namespace rangewerks::tests
