#include "automation/text.h"

#include <gtest/gtest.h>

#include <string>
#include <unordered_set>

namespace rangewerks::tests {
namespace {

using namespace automation;  // NOLINT(google-build-using-namespace): the functions under test

TEST(Trimming, RemovesBlanksAtTheEndsOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(TrimLeft("  a b  "), "a b  ");
  EXPECT_EQ(TrimRight("  a b  "), "  a b");
}

TEST(Trimming, LeavesNothingOfATextOfBlanks) {
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(TrimLeft("   "), "");
  EXPECT_EQ(TrimRight("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Trimming, KeepsTabsLineEndsAndOtherSpaces) {
  EXPECT_EQ(Trim("\ta\n"), "\ta\n");
  EXPECT_EQ(Trim(" \u00A0 "), "\u00A0");
}

TEST(Blankness, IsATextOfBlanksOrNothing) {
  EXPECT_TRUE(IsBlank(""));
  EXPECT_TRUE(IsBlank("  "));
  EXPECT_FALSE(IsBlank("\t"));
  EXPECT_FALSE(IsBlank(" a"));
}

TEST(TextLength, CountsCodePoints) {
  EXPECT_EQ(Length(""), 0U);
  EXPECT_EQ(Length("abc"), 3U);
  EXPECT_EQ(Length("äöü"), 3U);
  EXPECT_EQ(Length("€😀"), 2U);
}

TEST(TextLength, CountsEachByteThatIsNoValidUtf8) {
  EXPECT_EQ(Length("\xFF\xFE"), 2U);
  EXPECT_EQ(Length("a\x80z"), 3U);
  EXPECT_EQ(Length("\xE2\x82"), 2U) << "cut off";
  EXPECT_EQ(Length("\xC0\x80"), 2U) << "overlong";
  EXPECT_EQ(Length("\xE0\x80\x80"), 3U) << "overlong";
  EXPECT_EQ(Length("\xED\xA0\x80"), 3U) << "surrogate";
  EXPECT_EQ(Length("\xF4\x90\x80\x80"), 4U) << "beyond the last code point";
  EXPECT_EQ(Length("\xF4\x8F\xBF\xBF"), 1U) << "the last code point";
}

TEST(TextStart, NeverCutsACharacter) {
  EXPECT_EQ(Left("äöü", 2), "äö");
  EXPECT_EQ(Left("😀b", 1), "😀");
  EXPECT_EQ(Left("\xFFö", 1), "\xFF");
}

TEST(TextStart, IsTheWholeTextWhenItHasNoMoreCharacters) {
  EXPECT_EQ(Left("äöü", 3), "äöü");
  EXPECT_EQ(Left("äöü", 100), "äöü");
  EXPECT_EQ(Left("abc", 0), "");
  EXPECT_EQ(Left("", 5), "");
}

TEST(CaseFolding, FoldsEveryScriptWithCase) {
  EXPECT_EQ(FoldCase("AbZ09_"), "abz09_");
  EXPECT_EQ(FoldCase("ÄÖÜÉÑ"), "äöüéñ");
  EXPECT_EQ(FoldCase("ΑΒΓΣς"), "αβγσσ");
  EXPECT_EQ(FoldCase("ЖЯЁ"), "жяё");
  EXPECT_EQ(FoldCase("ԱՖ"), "աֆ");
  EXPECT_EQ(FoldCase("ĀŁŽ"), "āłž");
  EXPECT_EQ(FoldCase("Ａ"), "ａ");
  EXPECT_EQ(FoldCase("\U00010400"), "\U00010428");
}

TEST(CaseFolding, MapsOneCharacterToOne) {
  EXPECT_EQ(FoldCase("ẞß"), "ßß") << "never ss";
  EXPECT_EQ(FoldCase("İ"), "İ") << "has no simple folding";
  EXPECT_EQ(FoldCase("I"), "i") << "in every locale";
  EXPECT_EQ(FoldCase("\u212A"), "k") << "the Kelvin sign";
  EXPECT_EQ(FoldCase("ﬁ"), "ﬁ");
}

TEST(CaseFolding, KeepsBytesThatAreNoValidUtf8) { EXPECT_EQ(FoldCase("A\xFF\xC3"), "a\xFF\xC3"); }

TEST(CaseFolding, IsStableWhenRepeated) {
  for (const char* text : {"ÀÈ", "ϴθϑ", "Ǆǅǆ", "ᲐᲑ", "ꭰᏰ"}) {
    EXPECT_EQ(FoldCase(FoldCase(text)), FoldCase(text)) << text;
  }
  EXPECT_EQ(FoldCase("Ǆ"), FoldCase("ǅ"));
  EXPECT_EQ(FoldCase("ϴ"), "θ");
}

TEST(TextComparison, IgnoresCase) {
  EXPECT_EQ(CompareText("Range", "rANGE"), 0);
  EXPECT_LT(CompareText("GRÖSSE", "größe"), 0) << "s comes before ß";
  EXPECT_GT(CompareText("größe", "GRÖSSE"), 0);
  EXPECT_TRUE(EqualText("ÄRGER", "ärger"));
  EXPECT_TRUE(EqualText("\u212Aelvin", "KELVIN"));
  EXPECT_FALSE(EqualText("a", "á"));
}

TEST(TextComparison, OrdersPunctuationBeforeDigitsBeforeLetters) {
  EXPECT_LT(CompareText("a_b", "a1b"), 0);
  EXPECT_LT(CompareText("a1b", "aab"), 0);
  EXPECT_LT(CompareText("a_b", "aab"), 0);
  EXPECT_LT(CompareText("[a", "0"), 0);
  EXPECT_LT(CompareText("~", "0"), 0);
  EXPECT_LT(CompareText(" ", "!"), 0);
  EXPECT_LT(CompareText("€", "1"), 0);
  EXPECT_LT(CompareText("–", "1"), 0);
  EXPECT_LT(CompareText("9", "ä"), 0);
  EXPECT_LT(CompareText("z", "ä"), 0);
  EXPECT_LT(CompareText("9", "日"), 0);
}

TEST(TextComparison, PutsAShorterTextFirst) {
  EXPECT_LT(CompareText("", "a"), 0);
  EXPECT_LT(CompareText("code", "CODE2"), 0);
  EXPECT_GT(CompareText("code2", "CODE"), 0);
  EXPECT_EQ(CompareText("", ""), 0);
}

TEST(TextComparison, TellsInvalidBytesApart) {
  EXPECT_TRUE(EqualText("\xFF", "\xFF"));
  EXPECT_LT(CompareText("\xFE", "\xFF"), 0);
  EXPECT_NE(CompareText("\xFF", "ÿ"), 0);
}

TEST(FoldedHash, IsOneForTextsThatCompareEqual) {
  const FoldedHash hash;
  EXPECT_EQ(hash("Code"), hash("cODE"));
  EXPECT_EQ(hash("ÄÖ"), hash("äö"));
  EXPECT_EQ(hash("\u212A"), hash("K"));
  EXPECT_EQ(hash("ς"), hash("Σ"));
}

TEST(FoldedHash, TellsManyNamesApart) {
  const FoldedHash hash;
  std::unordered_set<std::size_t> seen;
  for (int i = 0; i < 100000; ++i) seen.insert(hash("range_" + std::to_string(i)));
  EXPECT_EQ(seen.size(), 100000U);
}

}  // namespace
}  // namespace rangewerks::tests
