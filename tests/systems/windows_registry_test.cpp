#include "systems/windows/windows_registry.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string>
#include <utility>

#include "support/registry_contract.h"
#include "systems/windows/windows_system.h"

namespace rangewerks::tests {
namespace {

using automation::Variant;
using platform::Registry;
using platform::RegistryValue;
using systems::WindowsRegistry;

constexpr std::int32_t kRoot = Registry::kCurrentUser;

/// The registry itself, with the key of the tests taken out before and after.
class CleanRegistry final : public Registry {
 public:
  CleanRegistry() { Clean(); }
  CleanRegistry(const CleanRegistry&) = delete;
  CleanRegistry& operator=(const CleanRegistry&) = delete;
  ~CleanRegistry() override { Clean(); }

  Reading Read(std::int32_t root, const std::string& key, const std::string& name) const override {
    return registry_.Read(root, key, name);
  }
  std::int32_t Write(std::int32_t root, const std::string& key, const std::string& name,
                     const RegistryValue& value) override {
    return registry_.Write(root, key, name, value);
  }

 private:
  static void Clean() { RegDeleteTreeA(HKEY_CURRENT_USER, kTestKey.c_str()); }

  WindowsRegistry registry_;
};

INSTANTIATE_TEST_SUITE_P(OfWindows, RegistryContract,
                         ::testing::Values([] { return std::make_shared<CleanRegistry>(); }));

class WindowsRegistryTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(RegCreateKeyA(HKEY_CURRENT_USER, kTestKey.c_str(), &key), ERROR_SUCCESS);
  }
  void TearDown() override { RegCloseKey(key); }

  /// Puts a value there as another program might.
  void Put(DWORD type, const std::string& data) const {
    ASSERT_EQ(RegSetValueExA(key, "value", 0, type, reinterpret_cast<const BYTE*>(data.data()),
                             static_cast<DWORD>(data.size())),
              ERROR_SUCCESS);
  }
  Variant Read() {
    return basRegistry::ReadRegistryValueEx(registry, kRoot, kTestKey, "value", found);
  }
  /// The type and the bytes of the value.
  std::pair<DWORD, std::string> Stored() const {
    DWORD type = REG_NONE;
    std::string data(100, '\0');
    auto size = static_cast<DWORD>(data.size());
    RegQueryValueExA(key, "value", nullptr, &type, reinterpret_cast<BYTE*>(data.data()), &size);
    return {type, data.substr(0, size)};
  }

  CleanRegistry registry;
  HKEY key = nullptr;
  bool found = false;
};

TEST_F(WindowsRegistryTest, AValueOfAnyOtherTypeReadsAsNotFound) {
  for (const DWORD type : {DWORD{REG_NONE}, DWORD{REG_EXPAND_SZ}, DWORD{REG_BINARY},
                           DWORD{REG_DWORD_BIG_ENDIAN}, DWORD{REG_MULTI_SZ}, DWORD{REG_QWORD}}) {
    Put(type, std::string("abcdefg\0", 8));
    found = true;
    EXPECT_EQ(Read(), Variant("")) << type;
    EXPECT_FALSE(found) << type;
  }
}

TEST_F(WindowsRegistryTest, ATextWithoutAZeroAtItsEndIsReadWhole) {
  Put(REG_SZ, "text");
  EXPECT_EQ(Read(), Variant("text"));
  EXPECT_TRUE(found);
}

TEST_F(WindowsRegistryTest, ATextIsCutAtItsFirstZero) {
  Put(REG_SZ, std::string("te\0xt\0", 6));
  EXPECT_EQ(Read(), Variant("te"));
}

TEST_F(WindowsRegistryTest, ANumberOfMoreThanFourBytesReadsAsNotFound) {
  Put(REG_DWORD, "12345678");
  EXPECT_EQ(Read(), Variant(""));
  EXPECT_FALSE(found);
}

TEST_F(WindowsRegistryTest, WritesATextWithOneZeroAtItsEnd) {
  basRegistry::WriteRegistryValue(registry, kRoot, kTestKey, "value", " two words ", false);
  EXPECT_EQ(Stored(), std::pair(DWORD{REG_SZ}, std::string("two words\0", 10)));
}

TEST_F(WindowsRegistryTest, WritesANumberAsFourBytes) {
  basRegistry::WriteRegistryValue(registry, kRoot, kTestKey, "value", 0x01020304, false);
  EXPECT_EQ(Stored(), std::pair(DWORD{REG_DWORD}, std::string("\4\3\2\1")));
}

TEST_F(WindowsRegistryTest, TakesWhatTheCodePageLacksForAQuestionMark) {
  if (GetACP() == CP_UTF8) GTEST_SKIP() << "this code page lacks nothing";
  basRegistry::WriteRegistryValue(registry, kRoot, kTestKey, "value", "a\u4E2Db", false);
  EXPECT_EQ(Read(), Variant("a?b"));
}

TEST_F(WindowsRegistryTest, AKeyThatMayNotBeOpenedAnswersWithTheSystemsStatus) {
  EXPECT_EQ(registry.Read(0, "key", "value").status, ERROR_INVALID_HANDLE);
  EXPECT_EQ(registry.Write(0, "key", "value", 1), ERROR_INVALID_HANDLE);
}

TEST_F(WindowsRegistryTest, ReadsAValueOfAnyTypeWithAllItsBytes) {
  const WindowsRegistry all;
  Put(REG_SZ, std::string("te\0xt\0", 6));
  auto reading = all.ReadWithFullAccess(kRoot, kTestKey, "value", 1024);
  EXPECT_EQ(reading.status, ERROR_SUCCESS);
  EXPECT_EQ(reading.type, REG_SZ);
  EXPECT_EQ(reading.bytes, std::string("te\0xt\0", 6));
  Put(REG_BINARY, "\xE4\1");
  reading = all.ReadWithFullAccess(kRoot, kTestKey, "value", 1024);
  EXPECT_EQ(reading.type, REG_BINARY);
  EXPECT_EQ(reading.bytes, "\xE4\1");
}

TEST_F(WindowsRegistryTest, ReadsNoValueThatIsLongerThanTheLimit) {
  const WindowsRegistry all;
  Put(REG_BINARY, "12345678");
  EXPECT_EQ(all.ReadWithFullAccess(kRoot, kTestKey, "value", 8).bytes, "12345678");
  EXPECT_EQ(all.ReadWithFullAccess(kRoot, kTestKey, "value", 7).status, ERROR_MORE_DATA);
}

TEST_F(WindowsRegistryTest, FindsNothingWithFullAccessWhereThereIsNothing) {
  const WindowsRegistry all;
  EXPECT_EQ(all.ReadWithFullAccess(kRoot, kTestKey, "none", 8).status, ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(all.ReadWithFullAccess(kRoot, kTestKey + "\\none", "value", 8).status,
            ERROR_FILE_NOT_FOUND);
}

TEST_F(WindowsRegistryTest, IsWhatTheSystemKeepsSettingsIn) {
  const auto settings = systems::WindowsSystem().OpenRegistry();
  EXPECT_EQ(settings->Write(kRoot, kTestKey, "value", 5), ERROR_SUCCESS);
  EXPECT_EQ(Read(), Variant(std::int32_t{5}));
}

}  // namespace
}  // namespace rangewerks::tests
