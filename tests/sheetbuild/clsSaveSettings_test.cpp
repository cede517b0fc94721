#include "sheetbuild/clsSaveSettings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/basRegistry.h"
#include "support/error_of.h"
#include "support/memory_registry.h"

namespace rangewerks::tests {
namespace {

using automation::KindName;
using automation::Member;
using automation::MemberTable;
using automation::Object;
using automation::Variant;
using platform::Registry;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::StartsWith;

const std::string kCommonKey = "Software\\Ostrel\\SheetConnectors\\Settings";

/// A program that uses the library.
class Program final : public automation::AutomationClass {
 public:
  explicit Program(std::string name) : name_(std::move(name)) {}
  const MemberTable& Members() const override {
    static const MemberTable table = MemberTable::For<Program>("Program").Get(
        1, "ProgramName", &Program::get_ProgramName, "Its name.");
    return table;
  }
  const std::string& get_ProgramName() const { return name_; }

 private:
  std::string name_;
};

/// A program that doesn't say who it is.
class Nameless final : public automation::AutomationClass {
 public:
  const MemberTable& Members() const override {
    static const MemberTable table = MemberTable::For<Nameless>("Nameless");
    return table;
  }
};

class ClsSaveSettings : public ::testing::Test {
 protected:
  void Call(const std::string& program) { caller = Object(std::make_shared<Program>(program)); }
  Variant Stored(const std::string& name) const {
    return basRegistry::ReadRegistryValue(*registry, Registry::kCurrentUser, kCommonKey, name);
  }
  static std::vector<bool> Values(const clsSaveSettings& settings) {
    return {settings.get_UpdateSheetForBrowse(), settings.get_ColumnHeading(),
            settings.get_ColumnFormat(),         settings.get_ToolTips(),
            settings.get_LengthValidation(),     settings.get_RangeWithColors()};
  }

  std::shared_ptr<MemoryRegistry> registry = std::make_shared<MemoryRegistry>();
  Object caller;
  clsSaveSettings settings{registry, [this] { return caller; }};
};

TEST_F(ClsSaveSettings, IsFalseForEverythingUntilItIsLoaded) {
  EXPECT_THAT(Values(settings), Each(false));
}

TEST_F(ClsSaveSettings, WithNothingStoredAllIsTrueExceptUpdateSheetForBrowse) {
  settings.let_UpdateSheetForBrowse(true);
  settings.LoadSettings();
  EXPECT_THAT(Values(settings), ElementsAre(false, true, true, true, true, true));
}

TEST_F(ClsSaveSettings, ASaveFollowedByALoadReturnsTheSameSixValues) {
  for (unsigned pattern = 0; pattern < 64; ++pattern) {
    settings.let_UpdateSheetForBrowse((pattern & 1U) != 0);
    settings.let_ColumnHeading((pattern & 2U) != 0);
    settings.let_ColumnFormat((pattern & 4U) != 0);
    settings.let_ToolTips((pattern & 8U) != 0);
    settings.let_LengthValidation((pattern & 16U) != 0);
    settings.let_RangeWithColors((pattern & 32U) != 0);
    settings.SaveSettings();
    clsSaveSettings loaded(registry);
    loaded.LoadSettings();
    EXPECT_EQ(Values(loaded), Values(settings)) << pattern;
  }
}

TEST_F(ClsSaveSettings, SavesAndLoadsUnderTheseNamesInThisOrder) {
  const auto order =
      ElementsAre(kCommonKey + "|ColumnHeading", kCommonKey + "|ColumnFormat",
                  kCommonKey + "|ToolTips", kCommonKey + "|LengthValidation",
                  kCommonKey + "|RangeWithColors", kCommonKey + "|Add Browse to Sheet");
  settings.SaveSettings();
  EXPECT_THAT(registry->Writes(), order);
  settings.LoadSettings();
  EXPECT_THAT(registry->Reads(), order);
}

TEST_F(ClsSaveSettings, StoresMinusOneForTrueAndZeroForFalse) {
  settings.let_UpdateSheetForBrowse(true);
  settings.SaveSettings();
  EXPECT_EQ(Stored("Add Browse to Sheet"), Variant(std::int32_t{-1}));
  EXPECT_EQ(Stored("ToolTips"), Variant(std::int32_t{0}));
}

TEST_F(ClsSaveSettings, AValueStoredForOneProgramIsntSeenByAnother) {
  Call("A");
  settings.SaveSettings();
  EXPECT_THAT(registry->Writes(), Each(StartsWith(kCommonKey + "\\A|")));
  settings.LoadSettings();
  EXPECT_THAT(Values(settings), Each(false));
  Call("B");
  settings.LoadSettings();
  EXPECT_THAT(Values(settings), ElementsAre(false, true, true, true, true, true));
}

TEST_F(ClsSaveSettings, ACallingObjectWithoutProgramNameReadsAndWritesTheCommonKey) {
  caller = Object(std::make_shared<Nameless>());
  settings.SaveSettings();
  settings.LoadSettings();
  EXPECT_THAT(registry->Writes(), Each(StartsWith(kCommonKey + "|")));
  EXPECT_THAT(registry->Reads(), Each(StartsWith(kCommonKey + "|")));
}

TEST_F(ClsSaveSettings, WithoutAFormOrACallingObjectTheCommonKeyIsUsed) {
  settings.SaveSettings();
  clsSaveSettings(registry).SaveSettings();
  EXPECT_THAT(registry->Writes(), Each(StartsWith(kCommonKey + "|")));
}

TEST_F(ClsSaveSettings, TheKeyIsBuiltAfreshForEachReadAndWrite) {
  int asked = 0;
  clsSaveSettings counted(registry, [&] {
    ++asked;
    return Object(std::make_shared<Program>(std::to_string(asked)));
  });
  counted.SaveSettings();
  EXPECT_EQ(asked, 6);
  EXPECT_EQ(registry->Writes().back(), kCommonKey + "\\6|Add Browse to Sheet");
  counted.LoadSettings();
  EXPECT_EQ(asked, 12);
}

TEST_F(ClsSaveSettings, AStoredNumberIsFalseWhenItIsZeroAndTrueOtherwise) {
  registry->Write(Registry::kCurrentUser, kCommonKey, "ToolTips", 0);
  registry->Write(Registry::kCurrentUser, kCommonKey, "Add Browse to Sheet", 5);
  registry->Write(Registry::kCurrentUser, kCommonKey, "ColumnFormat", "False");
  settings.LoadSettings();
  EXPECT_THAT(Values(settings), ElementsAre(true, true, false, false, true, true));
}

TEST_F(ClsSaveSettings, AStoredEmptyTextCountsAsAbsent) {
  registry->Write(Registry::kCurrentUser, kCommonKey, "ToolTips", "");
  settings.LoadSettings();
  EXPECT_TRUE(settings.get_ToolTips());
}

TEST_F(ClsSaveSettings, AStoredTextThatIsNoBooleanFailsTheLoad) {
  registry->Write(Registry::kCurrentUser, kCommonKey, "ToolTips", "perhaps");
  EXPECT_EQ(ErrorOf([&] { settings.LoadSettings(); }).Number(), 13);
}

TEST_F(ClsSaveSettings, MembersStandInTheOrderOfTheirSlots) {
  std::vector<std::string> slots;
  for (const auto& entry : settings.Members().Entries()) {
    slots.push_back(std::to_string(entry.id) + " " + KindName(entry.kind) + " " +
                    entry.name.Name());
  }
  EXPECT_THAT(slots, ElementsAre("1 get UpdateSheetForBrowse", "1 let UpdateSheetForBrowse",
                                 "2 get ColumnHeading", "2 let ColumnHeading", "3 get ColumnFormat",
                                 "3 let ColumnFormat", "4 get ToolTips", "4 let ToolTips",
                                 "5 get LengthValidation", "5 let LengthValidation",
                                 "6 get RangeWithColors", "6 let RangeWithColors",
                                 "7 call SaveSettings", "8 call LoadSettings"));
}

TEST_F(ClsSaveSettings, CanBeUsedByName) {
  const Object object(std::make_shared<clsSaveSettings>(registry));
  EXPECT_EQ(object.TypeName(), "clsSaveSettings");
  object.Call(Member("LoadSettings"));
  for (const char* name :
       {"ColumnHeading", "ColumnFormat", "ToolTips", "LengthValidation", "RangeWithColors"}) {
    EXPECT_EQ(object.Get(Member(name)), Variant(true)) << name;
    object.Let(Member(name), false);
  }
  EXPECT_EQ(object.Get(Member("UpdateSheetForBrowse")), Variant(false));
  object.Let(Member("UpdateSheetForBrowse"), true);
  object.Call(Member("SaveSettings"));
  settings.LoadSettings();
  EXPECT_THAT(Values(settings), ElementsAre(true, false, false, false, false, false));
}

}  // namespace
}  // namespace rangewerks::tests
