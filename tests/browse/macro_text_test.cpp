#include "browse/macro_text.h"

#include <gtest/gtest.h>

#include "automation/error.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

TEST(MacroLiteral, PutsATextInDoubleQuotes) {
  EXPECT_EQ(MacroLiteral("Brow&se Records"), "\"Brow&se Records\"");
  EXPECT_EQ(MacroLiteral("Ledger.Zo\xC3\xAB"), "\"Ledger.Zo\xC3\xAB\"");
}

TEST(MacroLiteral, AnEmptyTextIsTwoQuotes) { EXPECT_EQ(MacroLiteral(""), "\"\""); }

TEST(MacroLiteral, DoublesTheQuotesOfTheText) {
  EXPECT_EQ(MacroLiteral("a\"b"), "\"a\"\"b\"");
  EXPECT_EQ(MacroLiteral("\"): Kill \"*"), "\"\"\"): Kill \"\"*\"");
}

TEST(MacroLiteral, ApostrophesAndUnderscoresAreNothingSpecial) {
  EXPECT_EQ(MacroLiteral("it's _"), "\"it's _\"");
}

TEST(MacroLiteral, RefusesWhateverCouldEndTheLine) {
  for (const std::string end : {"\r", "\n", "\r\n", "\v", "\f", "\t", "\x1A", "\x7F", "\xC2\x85",
                                "\xE2\x80\xA8", "\xE2\x80\xA9"}) {
    const auto error = ErrorOf([&] { MacroLiteral("a" + end + "b"); });
    EXPECT_EQ(error.Number(), automation::kApplicationErrorBase);
    EXPECT_TRUE(error.Description().ends_with(
        "can't be written into macro code: it holds a line end or another control character"))
        << error.Description();
  }
  EXPECT_EQ(ErrorOf([] { MacroLiteral(std::string("a\0b", 3)); }).Description(),
            "\"a?b\" can't be written into macro code: it holds a line end or another control "
            "character");
}

TEST(MacroLiteral, RefusesCharactersThatACodePageTurnsIntoAQuote) {
  for (const char* quote : {"\xCA\xBA", "\xCC\x8E", "\xE2\x80\x9C", "\xE2\x80\x9D", "\xE2\x80\x9E",
                            "\xE2\x80\x9F", "\xE2\x80\xB3", "\xE2\x80\xB6", "\xE3\x80\x83",
                            "\xE3\x80\x9D", "\xE3\x80\x9E", "\xEF\xBC\x82"}) {
    const auto error = ErrorOf([&] { MacroLiteral(quote); });
    EXPECT_EQ(error.Description(),
              "\"" + std::string(quote) +
                  "\" can't be written into macro code: it holds a character that macro editors "
                  "take for a double quote");
  }
}

TEST(MacroLiteral, RefusesCharactersThatACodePageTurnsIntoALineEnd) {
  for (const char* end : {"\xE2\x97\x99", "\xE2\x99\x82", "\xE2\x99\x80", "\xE2\x99\xAA"}) {
    EXPECT_EQ(ErrorOf([&] { MacroLiteral(end); }).Description(),
              "\"" + std::string(end) +
                  "\" can't be written into macro code: it holds a character that macro editors "
                  "take for a line end");
  }
}

TEST(MacroLiteral, RefusesBytesThatAreNoCharacters) {
  EXPECT_EQ(ErrorOf([] { MacroLiteral("a\x93"); }).Description(),
            "\"a\x93\" can't be written into macro code: it holds bytes that are no characters");
}

}  // namespace
}  // namespace rangewerks::tests
