// What callers rely on in every registry. A test program includes this once for each registry:
//
//   INSTANTIATE_TEST_SUITE_P(Memory, RegistryContract,
//                            ::testing::Values([] { return std::make_shared<MemoryRegistry>(); }));
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "platform/basRegistry.h"
#include "platform/clsRegistrySetting.h"
#include "support/error_of.h"

namespace rangewerks::tests {

/// Makes a registry that is empty below kTestKey. It's kept until the test ends.
using RegistryMaker = std::function<std::shared_ptr<platform::Registry>()>;

inline const std::string kTestKey = "Software\\Ostrel\\SheetConnectors\\Rangewerks tests";

class RegistryContract : public ::testing::TestWithParam<RegistryMaker> {
 protected:
  using Variant = automation::Variant;
  static constexpr std::int32_t kRoot = platform::Registry::kCurrentUser;

  Variant Read(const std::string& name) {
    return basRegistry::ReadRegistryValueEx(*registry, kRoot, kTestKey, name, found);
  }
  void Write(const std::string& name, const Variant& value, bool asText = false) const {
    basRegistry::WriteRegistryValue(*registry, kRoot, kTestKey, name, value, asText);
  }
  /// What is read back after a write.
  Variant Stored(const Variant& value, bool asText = false) {
    Write("value", value, asText);
    const Variant result = Read("value");
    EXPECT_TRUE(found);
    return result;
  }

  std::shared_ptr<platform::Registry> registry = GetParam()();
  bool found = true;
};

TEST_P(RegistryContract, AKeyThatDoesntExistReadsAsTheEmptyTextAndNotFound) {
  EXPECT_EQ(basRegistry::ReadRegistryValueEx(*registry, kRoot, kTestKey + "\\No such key", "value",
                                             found),
            Variant(""));
  EXPECT_FALSE(found);
  EXPECT_EQ(basRegistry::lLastRegResult(), 2);
}

TEST_P(RegistryContract, AValueThatDoesntExistReadsAsTheEmptyTextAndNotFound) {
  Write("another", 1);
  EXPECT_EQ(Read("value"), Variant(""));
  EXPECT_FALSE(found);
  EXPECT_EQ(basRegistry::lLastRegResult(), 2);
}

TEST_P(RegistryContract, ATextWithBlanksAtBothEndsIsStoredWithoutThem) {
  EXPECT_EQ(Stored("  two words "), Variant("two words"));
  EXPECT_EQ(Stored("\ttab "), Variant("\ttab"));
}

TEST_P(RegistryContract, ATextOfDigitsIsStoredAsANumber) {
  EXPECT_EQ(Stored("123"), Variant(std::int32_t{123}));
}

TEST_P(RegistryContract, ATextOfDigitsStaysATextWhenTextIsForced) {
  EXPECT_EQ(Stored("123", true), Variant("123"));
  EXPECT_EQ(Stored(12.5, true), Variant("12.5"));
  EXPECT_EQ(Stored(true, true), Variant("True"));
}

TEST_P(RegistryContract, TrueReadsBackAsMinusOneAndFalseAsZero) {
  EXPECT_EQ(Stored(true), Variant(std::int32_t{-1}));
  EXPECT_EQ(Stored(false), Variant(std::int32_t{0}));
}

TEST_P(RegistryContract, NumbersKeepAll32Bits) {
  for (const std::int32_t number : {0, 1, -2, 0xFFFFFF, std::numeric_limits<std::int32_t>::max(),
                                    std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(Stored(number), Variant(number));
  }
}

TEST_P(RegistryContract, ANumberWithAFractionIsRounded) {
  EXPECT_EQ(Stored(2.5), Variant(std::int32_t{2}));
  EXPECT_EQ(Stored("3.5"), Variant(std::int32_t{4}));
}

TEST_P(RegistryContract, ANumberThatNeedsMoreThan32BitsOverflowsAndLeavesTheOldValue) {
  Write("value", 7);
  EXPECT_EQ(ErrorOf([&] { Write("value", "2147483648"); }).Number(), 6);
  EXPECT_EQ(Read("value"), Variant(std::int32_t{7}));
}

TEST_P(RegistryContract, WhatHasNoTextIsDroppedAndLeavesTheOldValue) {
  Write("value", 7);
  Write("value", automation::Null());
  Write("value", automation::ErrorValue::FromNumber(2007));
  EXPECT_EQ(Read("value"), Variant(std::int32_t{7}));
}

TEST_P(RegistryContract, AnEmptyTextIsFound) {
  EXPECT_EQ(Stored(""), Variant(""));
  EXPECT_EQ(Stored("   "), Variant(""));
}

TEST_P(RegistryContract, ATextEndsAtItsFirstZeroCharacterWhenItIsRead) {
  EXPECT_EQ(Stored(std::string("be\0hind", 7)), Variant("be"));
}

TEST_P(RegistryContract, AValueCanChangeItsTypeAndItsLength) {
  EXPECT_EQ(Stored("a text of some length"), Variant("a text of some length"));
  EXPECT_EQ(Stored(5), Variant(std::int32_t{5}));
  EXPECT_EQ(Stored("short"), Variant("short"));
}

TEST_P(RegistryContract, LongTextsComeBackWhole) {
  std::string text;
  while (text.size() < 20000) text += "c:\\folder\\";
  EXPECT_EQ(Stored(text), Variant(text));
}

TEST_P(RegistryContract, TextsMayHoldAnyCharacterOfTheirNeighboursSyntax) {
  const std::string text = "[a]=\"b\\\", #c; 'd'\t\r\n\\x00";
  EXPECT_EQ(Stored(text), Variant(text));
  Write(text.substr(0, 14), 3);
  EXPECT_EQ(Read(text.substr(0, 14)), Variant(std::int32_t{3}));
}

TEST_P(RegistryContract, LettersWithAccentsComeBack) {
  EXPECT_EQ(Stored("Büro é"), Variant("Büro é"));
  Write("Büro", "name");
  EXPECT_EQ(Read("Büro"), Variant("name"));
}

TEST_P(RegistryContract, KeysAndNamesAreComparedWithoutRegardToCase) {
  Write("Value Name", "first");
  EXPECT_EQ(Read("VALUE name"), Variant("first"));
  Write("value name", "second");
  EXPECT_EQ(Read("Value Name"), Variant("second"));
  std::string key = kTestKey;
  key.replace(0, 8, "SOFTWARE");
  EXPECT_EQ(basRegistry::ReadRegistryValue(*registry, kRoot, key, "Value Name"), Variant("second"));
}

TEST_P(RegistryContract, ValuesOfOneNameUnderSeveralKeysAreApart) {
  basRegistry::WriteRegistryValue(*registry, kRoot, kTestKey + "\\A", "value", "a", false);
  basRegistry::WriteRegistryValue(*registry, kRoot, kTestKey + "\\B", "value", "b", false);
  EXPECT_EQ(basRegistry::ReadRegistryValue(*registry, kRoot, kTestKey + "\\A", "value"),
            Variant("a"));
  EXPECT_EQ(basRegistry::ReadRegistryValue(*registry, kRoot, kTestKey + "\\B", "value"),
            Variant("b"));
  Read("value");
  EXPECT_FALSE(found);
}

TEST_P(RegistryContract, DoubledBackslashesAndOneAtTheEndOfAKeySayNothing) {
  const std::string odd = "Software\\Ostrel\\\\SheetConnectors\\Rangewerks tests\\";
  basRegistry::WriteRegistryValue(*registry, kRoot, odd, "value", 1, false);
  EXPECT_EQ(Read("value"), Variant(std::int32_t{1}));
  Write("value", 2);
  EXPECT_EQ(basRegistry::ReadRegistryValue(*registry, kRoot, odd, "value"),
            Variant(std::int32_t{2}));
}

TEST_P(RegistryContract, ASaveWithTheNameNeverWritesValueUnderValueName) {
  clsRegistrySetting setting(registry);
  setting.let_KeyPath(kTestKey);
  setting.let_ValueName("kept name");
  setting.let_Value("kept value");
  setting.SaveSetting("-NEVER-");
  EXPECT_EQ(Read("kept name"), Variant("kept value"));
  setting.let_Value({});
  EXPECT_EQ(setting.GetSetting("-NEVER-"), Variant("kept value"));
  EXPECT_EQ(setting.get_Value(), Variant("kept value"));
}

TEST_P(RegistryContract, GetSettingOfAMissingNameGivesTheDefaultAndLeavesTheEmptyTextInValue) {
  clsRegistrySetting setting(registry);
  setting.let_KeyPath(kTestKey);
  setting.let_Value(5);
  EXPECT_EQ(setting.GetSetting("no such name", "the default"), Variant("the default"));
  EXPECT_EQ(setting.get_Value(), Variant(""));
}

}  // namespace rangewerks::tests
