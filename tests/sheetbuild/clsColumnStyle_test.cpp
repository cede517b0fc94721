#include "sheetbuild/clsColumnStyle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/basRegistry.h"
#include "support/memory_registry.h"

namespace rangewerks::tests {
namespace {

using automation::KindName;
using automation::Member;
using automation::Object;
using automation::Variant;
using ::testing::ElementsAre;

const std::string kKey = "Software\\Ostrel\\SheetConnectors\\Colours";

class ClsColumnStyle : public ::testing::Test {
 protected:
  void Store(const std::string& name, const platform::RegistryValue& value) const {
    registry->Write(platform::Registry::kCurrentUser, kKey, name, value);
    registry->Forget();
  }
  Variant Stored(const std::string& name) const {
    return basRegistry::ReadRegistryValue(*registry, platform::Registry::kCurrentUser, kKey, name);
  }
  /// As the styles do it: only the read hands the key on.
  void UseKey() {
    style.let_KeyPath(kKey);
    style.get_KeyPath();
  }

  std::shared_ptr<MemoryRegistry> registry = std::make_shared<MemoryRegistry>();
  clsColumnStyle style{registry};
};

TEST_F(ClsColumnStyle, UntilALoadColoursAreZeroAndSwitchesFalse) {
  EXPECT_EQ(style.get_HeadingColour(), 0);
  EXPECT_EQ(style.get_ColumnColour(), 0);
  EXPECT_FALSE(style.get_EnableRangeColor());
  EXPECT_FALSE(style.get_EnableAlternateRangeColor());
  EXPECT_EQ(style.get_KeyPath(), "");
}

TEST_F(ClsColumnStyle, WithNoRegistryEntriesColoursAreWhiteAndBothSwitchesTrue) {
  UseKey();
  style.LoadColumnStyle();
  EXPECT_EQ(style.get_HeadingColour(), 0xFFFFFF);
  EXPECT_EQ(style.get_ColumnColour(), 0xFFFFFF);
  EXPECT_TRUE(style.get_EnableRangeColor());
  EXPECT_TRUE(style.get_EnableAlternateRangeColor());
}

TEST_F(ClsColumnStyle, TheOldLightGreenLoadsAsTheNewerColour) {
  Store("ColumnColour", 8454016);
  Store("HeadingColour", 0x80FF80);
  UseKey();
  style.LoadColumnStyle();
  EXPECT_EQ(style.get_ColumnColour(), 65408);
  EXPECT_EQ(style.get_HeadingColour(), 65408);
}

TEST_F(ClsColumnStyle, TheNewerColourIsStoredAtTheNextSave) {
  Store("ColumnColour", 8454016);
  UseKey();
  style.LoadColumnStyle();
  style.SaveColumnStyle();
  EXPECT_EQ(Stored("ColumnColour"), Variant(std::int32_t{65408}));
}

TEST_F(ClsColumnStyle, AnyOtherColourLoadsUnchanged) {
  UseKey();
  for (const std::int32_t colour : {0, 1, -1, 8454015, 8454017, 65408, 0xC0C0C0, 0xFFFFFF}) {
    Store("ColumnColour", colour);
    style.LoadColumnStyle();
    EXPECT_EQ(style.get_ColumnColour(), colour);
  }
}

TEST_F(ClsColumnStyle, AColourIsReadAgainUnlessItIsReplaced) {
  UseKey();
  Store("HeadingColour", 8454016);
  Store("ColumnColour", 5);
  style.LoadColumnStyle();
  EXPECT_THAT(registry->Reads(),
              ElementsAre(kKey + "|HeadingColour", kKey + "|ColumnColour", kKey + "|ColumnColour",
                          kKey + "|EnableRangeColor", kKey + "|EnableAlternateRangeColor"));
}

TEST_F(ClsColumnStyle, AStoredValueThatIsNoNumberLeavesItsPropertyAndTheRestIsLoaded) {
  style.let_HeadingColour(7);
  style.let_EnableRangeColor(false);
  Store("HeadingColour", "red");
  Store("ColumnColour", 5);
  Store("EnableRangeColor", "perhaps");
  UseKey();
  style.LoadColumnStyle();
  EXPECT_EQ(style.get_HeadingColour(), 7);
  EXPECT_EQ(style.get_ColumnColour(), 5);
  EXPECT_FALSE(style.get_EnableRangeColor());
  EXPECT_TRUE(style.get_EnableAlternateRangeColor());
}

TEST_F(ClsColumnStyle, SavesItsFourValuesInOrderAsNumbers) {
  UseKey();
  style.let_HeadingColour(0x123456);
  style.let_ColumnColour(-1);
  style.let_EnableRangeColor(true);
  style.SaveColumnStyle();
  EXPECT_THAT(registry->Writes(),
              ElementsAre(kKey + "|HeadingColour", kKey + "|ColumnColour",
                          kKey + "|EnableRangeColor", kKey + "|EnableAlternateRangeColor"));
  EXPECT_EQ(Stored("HeadingColour"), Variant(std::int32_t{0x123456}));
  EXPECT_EQ(Stored("ColumnColour"), Variant(std::int32_t{-1}));
  EXPECT_EQ(Stored("EnableRangeColor"), Variant(std::int32_t{-1}));
  EXPECT_EQ(Stored("EnableAlternateRangeColor"), Variant(std::int32_t{0}));
}

TEST_F(ClsColumnStyle, AKeyIsUsedOnlyOnceItHasBeenRead) {
  style.let_KeyPath(kKey);
  style.SaveColumnStyle();
  EXPECT_EQ(registry->Writes().front(), "|HeadingColour");
  registry->Forget();
  EXPECT_EQ(style.get_KeyPath(), kKey);
  style.SaveColumnStyle();
  EXPECT_EQ(registry->Writes().front(), kKey + "|HeadingColour");
}

TEST_F(ClsColumnStyle, MembersStandInTheOrderOfTheirSlots) {
  std::vector<std::string> slots;
  for (const auto& entry : style.Members().Entries()) {
    slots.push_back(std::to_string(entry.id) + " " + KindName(entry.kind) + " " +
                    entry.name.Name());
  }
  EXPECT_THAT(slots,
              ElementsAre("1 get HeadingColour", "1 let HeadingColour", "2 get ColumnColour",
                          "2 let ColumnColour", "3 get EnableRangeColor", "3 let EnableRangeColor",
                          "4 get EnableAlternateRangeColor", "4 let EnableAlternateRangeColor",
                          "5 get KeyPath", "5 let KeyPath"));
}

TEST_F(ClsColumnStyle, CanBeUsedByName) {
  const Object object(std::make_shared<clsColumnStyle>(registry));
  EXPECT_EQ(object.TypeName(), "clsColumnStyle");
  object.Let(Member("HeadingColour"), "255");
  object.Let(Member("ColumnColour"), 0xFF);
  object.Let(Member("EnableRangeColor"), 1);
  object.Let(Member("EnableAlternateRangeColor"), true);
  object.Let(Member("KeyPath"), kKey);
  EXPECT_EQ(object.Get(Member("HeadingColour")), Variant(std::int32_t{255}));
  EXPECT_EQ(object.Get(Member("ColumnColour")), Variant(std::int32_t{255}));
  EXPECT_EQ(object.Get(Member("EnableRangeColor")), Variant(true));
  EXPECT_EQ(object.Get(Member("EnableAlternateRangeColor")), Variant(true));
  EXPECT_EQ(object.Get(Member("KeyPath")), Variant(kKey));
  object.As<clsColumnStyle>()->SaveColumnStyle();
  EXPECT_EQ(Stored("HeadingColour"), Variant(std::int32_t{255}));
}

}  // namespace
}  // namespace rangewerks::tests
