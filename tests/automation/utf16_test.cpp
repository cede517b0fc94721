#include "automation/utf16.h"

#include <gtest/gtest.h>

#include <string>

namespace rangewerks::tests {
namespace {

std::u16string Wide(std::string_view utf8) { return automation::Utf16Of<char16_t>(utf8); }
std::string Narrow(std::u16string_view utf16) { return automation::Utf8Of<char16_t>(utf16); }

TEST(Utf16, OfCharactersOfEachLengthIsThereAndBack) {
  const std::string utf8 = "a\u00E9\u20AC\U0001F600z";
  const std::u16string utf16 = u"a\u00E9\u20AC\U0001F600z";
  EXPECT_EQ(Wide(utf8), utf16);
  EXPECT_EQ(Narrow(utf16), utf8);
  EXPECT_EQ(utf16.size(), 6U) << "the fourth character takes a pair";
}

TEST(Utf16, KeepsTheFirstAndLastCharacterOfEachLength) {
  const std::u16string utf16 = u"\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF";
  EXPECT_EQ(Wide(Narrow(utf16)), utf16);
}

TEST(Utf16, KeepsNulCharactersWithinATextAndTheEmptyText) {
  using namespace std::string_literals;
  EXPECT_EQ(Wide("a\0b"s), u"a\0b"s);
  EXPECT_EQ(Narrow(u"a\0b"s), "a\0b"s);
  EXPECT_EQ(Wide(""), u"");
  EXPECT_EQ(Narrow(u""), "");
}

TEST(Utf16, KeepsHalfASurrogatePair) {
  const std::u16string high = {u'a', char16_t{0xD83D}, u'b'};
  const std::u16string low = {char16_t{0xDE00}};
  const std::u16string atTheEnd = {char16_t{0xD83D}};
  const std::u16string wrongWayRound = {char16_t{0xDE00}, char16_t{0xD83D}};
  for (const auto& text : {high, low, atTheEnd, wrongWayRound}) EXPECT_EQ(Wide(Narrow(text)), text);
  EXPECT_EQ(Narrow(atTheEnd), "\xED\xA0\xBD");
}

TEST(Utf16, ReplacesEachByteThatBelongsToNoCharacter) {
  EXPECT_EQ(Wide("a\xFFz"), u"a\uFFFDz");
  EXPECT_EQ(Wide("\xC3"), u"\uFFFD") << "cut off";
  EXPECT_EQ(Wide("\xC0\xAF"), u"\uFFFD\uFFFD") << "overlong";
  EXPECT_EQ(Wide("\xF5\x80"), u"\uFFFD\uFFFD") << "beyond the last character";
}

}  // namespace
}  // namespace rangewerks::tests
