#include "sheetbuild/clsAnalyserStyles.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/basRegistry.h"
#include "support/memory_registry.h"

namespace rangewerks::tests {
namespace {

using automation::Variant;
using platform::Registry;

const std::string kRangeKey =
    "Software\\Ostrel\\SheetConnectors\\RangeProperties\\ColourPallet\\AdjustmentColumn";
const std::string kAlternateKey =
    "Software\\Ostrel\\SheetConnectors\\AltRangeProperties"
    "\\ColourPallet\\AlternateAdjustmentColumn";

class ClsAnalyserStyles : public ::testing::Test {
 protected:
  void UseThePersonsKeys() {
    styles.get_AdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kRangeKey);
    styles.get_AlternateAdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kAlternateKey);
  }
  void Store(const std::string& key, const std::string& name, std::int32_t value) const {
    registry->Write(Registry::kCurrentUser, key, name, value);
  }
  void StoreThePersonsColours() const {
    Store(kRangeKey, "HeadingColour", 1);
    Store(kRangeKey, "ColumnColour", 2);
    Store(kRangeKey, "EnableAlternateRangeColor", 0);
    Store(kAlternateKey, "ColumnColour", 3);
    Store(kAlternateKey, "EnableRangeColor", 0);
    registry->Forget();
  }
  Variant Stored(const std::string& key, const std::string& name) const {
    return basRegistry::ReadRegistryValue(*registry, Registry::kCurrentUser, key, name);
  }

  std::shared_ptr<MemoryRegistry> registry = std::make_shared<MemoryRegistry>();
  clsAnalyserStyles styles{registry};
};

TEST_F(ClsAnalyserStyles, KeepsThePersonsColoursUnderTheseKeys) {
  EXPECT_EQ(clsAnalyserStyles::kRangeKey, "Software\\Ostrel\\SheetConnectors\\RangeProperties");
  EXPECT_EQ(clsAnalyserStyles::kAlternateKey,
            "Software\\Ostrel\\SheetConnectors\\AltRangeProperties");
}

TEST_F(ClsAnalyserStyles, AFirstLoadGivesTheDefaultsAndASecondTheStoredColours) {
  StoreThePersonsColours();
  UseThePersonsKeys();

  styles.LoadSettingsFromRegistry();
  EXPECT_EQ(styles.get_AdjustmentColumn()->get_HeadingColour(), 0xFFFFFF);
  EXPECT_EQ(styles.get_AdjustmentColumn()->get_ColumnColour(), 0xFFFFFF);
  EXPECT_TRUE(styles.get_AdjustmentColumn()->get_EnableAlternateRangeColor());
  EXPECT_EQ(styles.get_AlternateAdjustmentColumn()->get_ColumnColour(), 0xFFFFFF);

  styles.LoadSettingsFromRegistry();
  EXPECT_EQ(styles.get_AdjustmentColumn()->get_HeadingColour(), 1);
  EXPECT_EQ(styles.get_AdjustmentColumn()->get_ColumnColour(), 2);
  EXPECT_FALSE(styles.get_AdjustmentColumn()->get_EnableAlternateRangeColor());
  EXPECT_EQ(styles.get_AlternateAdjustmentColumn()->get_ColumnColour(), 3);
  EXPECT_FALSE(styles.get_AlternateAdjustmentColumn()->get_EnableRangeColor());
}

TEST_F(ClsAnalyserStyles, ALoadReadsTheSetOfTheRangeFirst) {
  UseThePersonsKeys();
  styles.LoadSettingsFromRegistry();
  ASSERT_EQ(registry->Reads().size(), 12U);
  EXPECT_EQ(registry->Reads().front(), clsAnalyserStyles::kRangeKey + "|HeadingColour");
  EXPECT_EQ(registry->Reads().back(),
            clsAnalyserStyles::kAlternateKey + "|EnableAlternateRangeColor");
  registry->Forget();
  styles.LoadSettingsFromRegistry();
  EXPECT_EQ(registry->Reads().front(), kRangeKey + "|HeadingColour");
  EXPECT_EQ(registry->Reads().back(), kAlternateKey + "|EnableAlternateRangeColor");
}

TEST_F(ClsAnalyserStyles, AFirstLoadLeavesTheKeysWithTheirEndings) {
  UseThePersonsKeys();
  styles.LoadSettingsFromRegistry();
  EXPECT_EQ(styles.get_AdjustmentColumn()->get_KeyPath(), kRangeKey);
  EXPECT_EQ(styles.get_AlternateAdjustmentColumn()->get_KeyPath(), kAlternateKey);
  styles.LoadSettingsFromRegistry();
  EXPECT_EQ(styles.get_AdjustmentColumn()->get_KeyPath(), kRangeKey);
}

TEST_F(ClsAnalyserStyles, AKeyThatHasItsEndingIsReadAtOnce) {
  StoreThePersonsColours();
  styles.get_AdjustmentColumn()->let_KeyPath(kRangeKey);
  styles.LoadSettingsFromRegistry();
  EXPECT_EQ(styles.get_AdjustmentColumn()->get_ColumnColour(), 2);
}

TEST_F(ClsAnalyserStyles, ASaveGoesToTheKeysOfTheLastLoad) {
  UseThePersonsKeys();
  styles.LoadSettingsFromRegistry();
  styles.LoadSettingsFromRegistry();
  styles.get_AdjustmentColumn()->let_ColumnColour(4);
  styles.get_AlternateAdjustmentColumn()->let_HeadingColour(5);
  styles.get_AlternateAdjustmentColumn()->let_EnableRangeColor(false);
  styles.SaveSettingsToRegistry();
  EXPECT_EQ(registry->Writes().front(), kRangeKey + "|HeadingColour");
  EXPECT_EQ(registry->Writes().size(), 8U);
  EXPECT_EQ(Stored(kRangeKey, "ColumnColour"), Variant(std::int32_t{4}));
  EXPECT_EQ(Stored(kAlternateKey, "HeadingColour"), Variant(std::int32_t{5}));
  EXPECT_EQ(Stored(kAlternateKey, "EnableRangeColor"), Variant(std::int32_t{0}));
  EXPECT_EQ(Stored(kAlternateKey, "EnableAlternateRangeColor"), Variant(std::int32_t{-1}));
}

TEST_F(ClsAnalyserStyles, ASaveAfterOneLoadGoesToTheKeysWithoutTheirEndings) {
  UseThePersonsKeys();
  styles.LoadSettingsFromRegistry();
  styles.SaveSettingsToRegistry();
  EXPECT_EQ(registry->Writes().front(), clsAnalyserStyles::kRangeKey + "|HeadingColour");
}

TEST_F(ClsAnalyserStyles, EachSetIsMadeOnFirstReadAndKept) {
  const auto made = styles.get_AdjustmentColumn();
  EXPECT_EQ(styles.get_AdjustmentColumn(), made);
  EXPECT_NE(styles.get_AlternateAdjustmentColumn(), made);
  const auto given = std::make_shared<clsColumnStyle>(registry);
  styles.set_AdjustmentColumn(given);
  styles.set_AlternateAdjustmentColumn(given);
  EXPECT_EQ(styles.get_AdjustmentColumn(), given);
  EXPECT_EQ(styles.get_AlternateAdjustmentColumn(), given);
  styles.set_AdjustmentColumn(nullptr);
  EXPECT_NE(styles.get_AdjustmentColumn(), nullptr);
  EXPECT_NE(styles.get_AdjustmentColumn(), given);
}

}  // namespace
}  // namespace rangewerks::tests
