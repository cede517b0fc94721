// The order form of a placing: its defaults, and the look that it takes from the person's settings.
#include "sheetbuild/clsRangeProperties.h"

#include <gmock/gmock.h>

#include "automation/object.h"
#include "support/memory_registry.h"

namespace rangewerks::tests {
namespace {

using platform::Registry;

constexpr const char* kRange =
    "Software\\Ostrel\\SheetConnectors\\RangeProperties\\ColourPallet\\AdjustmentColumn";
constexpr const char* kAlternate =
    "Software\\Ostrel\\SheetConnectors\\AltRangeProperties\\ColourPallet\\AlternateAdjustmentColum"
    "n";

class RangeProperties : public testing::Test {
 protected:
  void Store(const char* key, const char* name, std::int32_t value) const {
    registry->Write(Registry::kCurrentUser, key, name, value);
  }

  std::shared_ptr<MemoryRegistry> registry = std::make_shared<MemoryRegistry>();
  clsRangeProperties properties{registry};
};

TEST_F(RangeProperties, AreEmptyAtFirst) {
  EXPECT_EQ(properties.get_SetForceColumnWidth(), -1);
  EXPECT_EQ(properties.get_HeadingColour(), -1);
  EXPECT_EQ(properties.get_RangeColour(), -1);
  EXPECT_EQ(properties.get_AlternateRangeColour(), -1);
  EXPECT_EQ(properties.get_RowsToAdd(), 0);
  EXPECT_EQ(properties.get_RangeHeading(), "");
  EXPECT_FALSE(properties.get_AddFormat());
  EXPECT_FALSE(properties.get_RangeArea());
}

TEST_F(RangeProperties, WithNothingStoredTheColoursAreOnAndWhite) {
  properties.SetStandardDetailFormat();
  EXPECT_EQ(properties.get_HeadingColour(), 0xFFFFFF);
  EXPECT_EQ(properties.get_RangeColour(), 0xFFFFFF);
  EXPECT_EQ(properties.get_AlternateRangeColour(), 0xFFFFFF);
  EXPECT_TRUE(properties.get_AddLineAtBottomOfRange());
}

TEST_F(RangeProperties, TakeThePersonsColours) {
  Store(kRange, "HeadingColour", 0x112233);
  Store(kRange, "ColumnColour", 0x445566);
  Store(kAlternate, "ColumnColour", 0x778899);
  properties.SetStandardDetailFormat();
  EXPECT_EQ(properties.get_HeadingColour(), 0x112233);
  EXPECT_EQ(properties.get_RangeColour(), 0x445566);
  EXPECT_EQ(properties.get_AlternateRangeColour(), 0x778899);
}

TEST_F(RangeProperties, WithoutAnAlternateColourBothColoursAreTheSame) {
  Store(kRange, "ColumnColour", 0x445566);
  Store(kAlternate, "EnableAlternateRangeColor", 0);
  properties.SetStandardDetailFormat();
  EXPECT_EQ(properties.get_AlternateRangeColour(), 0x445566);
}

TEST_F(RangeProperties, WithTheRangeColourOffEverythingIsWhiteAndThereIsNoClosingLine) {
  Store(kRange, "ColumnColour", 0x445566);
  Store(kRange, "EnableRangeColor", 0);
  Store(kAlternate, "EnableAlternateRangeColor", 0);
  properties.SetStandardDetailFormat();
  EXPECT_EQ(properties.get_HeadingColour(), 0xFFFFFF);
  EXPECT_EQ(properties.get_RangeColour(), 0xFFFFFF);
  EXPECT_EQ(properties.get_AlternateRangeColour(), 0xFFFFFF);
  EXPECT_FALSE(properties.get_AddLineAtBottomOfRange());
}

TEST_F(RangeProperties, TheStandardLookLeavesWhatTheCallerDecides) {
  properties.let_RangeHeading("Own");
  properties.let_RowsToAdd(7);
  properties.SetStandardDetailFormat();
  EXPECT_TRUE(properties.get_AddHeadingsBorder());
  EXPECT_TRUE(properties.get_AddRangeBorder());
  EXPECT_TRUE(properties.get_BoldRangeHeadings());
  EXPECT_TRUE(properties.get_AddFormat());
  EXPECT_FALSE(properties.get_AddColumnHeadings());  // a stored option has no say here
  EXPECT_FALSE(properties.get_AddValidation());
  EXPECT_FALSE(properties.get_AddToolTips());
  EXPECT_FALSE(properties.get_WrapHeaderText());
  EXPECT_FALSE(properties.get_DoNotAddBoxLinesIfColoured());
  EXPECT_EQ(properties.get_SetForceColumnWidth(), -1);
  EXPECT_EQ(properties.get_RowsToAdd(), 7);
  EXPECT_EQ(properties.get_RangeHeading(), "Own");
  properties.let_AddColumnHeadings(true);
  properties.SetStandardDetailFormat();
  EXPECT_TRUE(properties.get_AddColumnHeadings());
}

TEST_F(RangeProperties, MembersStandInTheOrderOfTheirSlots) {
  std::vector<std::string> slots;
  for (const auto& entry : properties.Members().Entries()) {
    const std::string& name = entry.name.Name();
    if (slots.empty() || slots.back() != name) slots.push_back(name);
  }
  EXPECT_THAT(slots,
              testing::ElementsAre(
                  "WrapHeaderText", "DoNotAddBoxLinesIfColoured", "AddLineAtBottomOfRange",
                  "SetForceColumnWidth", "BoldRangeHeadings", "AddRangeBorder", "AddHeadingsBorder",
                  "ExcelRange", "RangeArea", "HeadingColour", "RangeColour", "AlternateRangeColour",
                  "RangeHeading", "RowsToAdd", "AddColumnHeadings", "AddToolTips", "AddValidation",
                  "AddFormat", "RangeName", "SetStandardDetailFormat", "FormatRange"));
}

}  // namespace
}  // namespace rangewerks::tests
