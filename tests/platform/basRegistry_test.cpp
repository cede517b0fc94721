#include "platform/basRegistry.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "automation/conversions.h"
#include "platform/clsRegistrySetting.h"
#include "support/memory_registry.h"
#include "support/registry_contract.h"

namespace rangewerks::tests {
namespace {

using automation::Variant;
using platform::Registry;

constexpr std::int32_t kRoot = Registry::kCurrentUser;

INSTANTIATE_TEST_SUITE_P(InMemory, RegistryContract,
                         ::testing::Values([] { return std::make_shared<MemoryRegistry>(); }));

TEST(BasRegistry, AValueOfAnyOtherTypeReadsAsNotFound) {
  MemoryRegistry registry;
  registry.PutOfAnotherType("key", "value");
  bool found = true;
  EXPECT_EQ(basRegistry::ReadRegistryValueEx(registry, kRoot, "key", "value", found), Variant(""));
  EXPECT_FALSE(found);
  EXPECT_EQ(basRegistry::ReadRegistryValue(registry, kRoot, "key", "value"), Variant(""));
}

TEST(BasRegistry, AFailedWriteIsSilentAndLeavesItsStatus) {
  MemoryRegistry registry;
  registry.AnswerWritesWith(5);
  basRegistry::WriteRegistryValue(registry, kRoot, "key", "value", 1, false);
  EXPECT_EQ(basRegistry::lLastRegResult(), 5);
  EXPECT_EQ(registry.Size(), 0U);
  registry.AnswerWritesWith(0);
  basRegistry::WriteRegistryValue(registry, kRoot, "key", "value", 1, false);
  EXPECT_EQ(basRegistry::lLastRegResult(), 0);
}

TEST(BasRegistry, ADateIsNoNumberAndIsStoredAsText) {
  MemoryRegistry registry;
  basRegistry::WriteRegistryValue(registry, kRoot, "key", "value", automation::DateOf(2024, 1, 31),
                                  false);
  EXPECT_EQ(basRegistry::ReadRegistryValue(registry, kRoot, "key", "value"), Variant("1/31/2024"));
}

TEST(BasRegistry, RootsAreApart) {
  MemoryRegistry registry;
  const auto machine = static_cast<std::int32_t>(0x80000002U);
  basRegistry::WriteRegistryValue(registry, kRoot, "key", "value", 1, false);
  EXPECT_EQ(basRegistry::ReadRegistryValue(registry, machine, "key", "value"), Variant(""));
}

TEST(BasRegistry, KeysOfTheProductLieUnderOneKey) {
  EXPECT_EQ(basRegistry::kProductKey, "Software\\Ostrel\\SheetConnectors");
}

TEST(ClsRegistrySetting, BelongsToTheCurrentUserUntilAnotherRootIsSet) {
  const auto registry = std::make_shared<MemoryRegistry>();
  clsRegistrySetting setting(registry);
  EXPECT_EQ(setting.get_RootKey(), static_cast<std::int32_t>(0x80000001U));
  EXPECT_EQ(setting.get_KeyPath(), "");
  EXPECT_EQ(setting.get_ValueName(), "");
  EXPECT_EQ(setting.get_Value(), Variant());
  setting.let_RootKey(5);
  setting.SaveSetting("value", 1);
  EXPECT_EQ(basRegistry::ReadRegistryValue(*registry, 5, "", "value"), Variant(std::int32_t{1}));
}

TEST(ClsRegistrySetting, AValueThatIsGivenGoesInInsteadOfItsOwn) {
  const auto registry = std::make_shared<MemoryRegistry>();
  clsRegistrySetting setting(registry);
  setting.let_Value("its own");
  setting.SaveSetting("value", "given");
  EXPECT_EQ(setting.get_Value(), Variant("its own"));
  EXPECT_EQ(setting.GetSetting("value"), Variant("given"));
}

TEST(ClsRegistrySetting, TakesTheNameNeverOnlyInCapitals) {
  const auto registry = std::make_shared<MemoryRegistry>();
  clsRegistrySetting setting(registry);
  setting.let_ValueName("kept");
  setting.SaveSetting("-never-", 1);
  EXPECT_EQ(registry->Writes(), std::vector<std::string>{"|-never-"});
}

}  // namespace
}  // namespace rangewerks::tests
