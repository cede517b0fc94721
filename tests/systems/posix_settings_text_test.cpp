#include "systems/posix/settings_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace rangewerks::tests {
namespace {

using systems::NormalKey;
using systems::ReadSettings;
using systems::Settings;
using systems::WriteSettings;

Settings Example() {
  return {
      {"Software\\Ostrel",
       {{"ColumnHeading", -1},
        {"Folder", "c:\\journals\\"},
        {"Greatest", std::numeric_limits<std::int32_t>::max()},
        {"Least", std::numeric_limits<std::int32_t>::min()},
        {"Title", "Journals of \"today\""}}},
      {"Software\\[odd] = \"key\"\n", {{"# name \\\" = 1", std::string("\0\x01\x7F\t\r\n ü", 9)}}},
      {"", {{"", ""}}}};
}

TEST(SettingsText, IsReadableAndEndsWithALineThatTellsItIsWhole) {
  const Settings settings = {
      {"Software\\Ostrel", {{"ColumnHeading", -1}, {"Folder", "c:\\a [b] \"c\"\t"}}}};
  EXPECT_EQ(WriteSettings(settings),
            "# Settings, one set for each person. Programs replace this file as a whole; one that "
            "lacks\n# its last line isn't used, but kept beside a new one.\n"
            "\n"
            "[Software\\\\Ostrel]\n"
            "\"ColumnHeading\" = -1\n"
            "\"Folder\" = \"c:\\\\a [b\\] \\\"c\\\"\\x09\"\n"
            "\n"
            "end\n");
}

TEST(SettingsText, GivesBackWhatWasWritten) {
  EXPECT_EQ(ReadSettings(WriteSettings(Example())), Example());
  EXPECT_EQ(ReadSettings(WriteSettings({})), Settings());
}

TEST(SettingsText, CutOffAnywhereIsNoSuchText) {
  const std::string text = WriteSettings(Example());
  for (std::size_t size = 0; size < text.size(); ++size) {
    EXPECT_FALSE(ReadSettings(text.substr(0, size))) << size;
  }
}

TEST(SettingsText, WithAnythingBehindItsEndIsNoSuchText) {
  EXPECT_FALSE(ReadSettings("end\nend\n"));
  EXPECT_FALSE(ReadSettings("end\n\n"));
}

TEST(SettingsText, WithALineThatIsNeitherKeyNorValueIsNoSuchText) {
  for (const char* line : {"word", "[key", "[key] ", "[key\\q]", "\"name\"", "\"name\" = ",
                           "\"name\" = 1x", "\"name\" = 2147483648", "\"name\" = \"text",
                           "\"name\" = \"text\" ", "\"name\"= 1", "\"name\" = \"\\x0\"",
                           "\"name\" = \"\\x0g\"", "\"name\" = \"\\\"", " \"name\" = 1", "End"}) {
    EXPECT_FALSE(ReadSettings(std::string("[k]\n") + line + "\nend\n")) << line;
  }
  EXPECT_FALSE(ReadSettings("\"value without a key\" = 1\nend\n"));
}

TEST(SettingsText, MayHoldRemarksAndEmptyLines) {
  EXPECT_EQ(ReadSettings("# by hand\n\n[k]\n# more\n\"n\" = 1\nend\n"),
            (Settings{{"k", {{"n", 1}}}}));
}

TEST(SettingsText, TakesTheLastOfSeveralValuesOfOneName) {
  EXPECT_EQ(ReadSettings("[k]\n\"n\" = 1\n[K]\n\"N\" = 2\nend\n"), (Settings{{"k", {{"n", 2}}}}));
}

/// Whatever a byte is changed to: it's read or refused, and what is read can be written.
TEST(SettingsText, SurvivesAnyChangeOfAByte) {
  const std::string text = WriteSettings(Example());
  for (std::size_t i = 0; i < text.size(); ++i) {
    for (const char c : {'\0', '\n', '"', '\\', ']', '[', 'x', '\xFF'}) {
      std::string changed = text;
      changed[i] = c;
      const auto settings = ReadSettings(changed);
      if (settings) {
        EXPECT_EQ(ReadSettings(WriteSettings(*settings)), settings) << i;
      }
    }
  }
}

TEST(SettingsText, KeysAreTheSameWithBackslashesAtTheirEndsOrDoubledOnes) {
  EXPECT_EQ(NormalKey("a\\b"), "a\\b");
  EXPECT_EQ(NormalKey("\\a\\\\b\\"), "a\\b");
  EXPECT_EQ(NormalKey("\\"), "");
  EXPECT_EQ(NormalKey(""), "");
}

}  // namespace
}  // namespace rangewerks::tests
