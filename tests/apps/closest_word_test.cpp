#include "apps/rangewerks/closest_word.h"

#include <gtest/gtest.h>

#include <array>

namespace rangewerks::apps {
namespace {

constexpr std::array<std::string_view, 4> kWords = {"rdtString", "rdtDouble", "rdtDate", "H"};

TEST(ClosestWord, FindsAWordWithSwappedMissingOrExtraLetters) {
  EXPECT_EQ(ClosestWord("rdtDuoble", kWords), "rdtDouble");
  EXPECT_EQ(ClosestWord("rdtStrng", kWords), "rdtString");
  EXPECT_EQ(ClosestWord("rrdtDate", kWords), "rdtDate");
  EXPECT_EQ(ClosestWord("dtDate", kWords), "rdtDate");
}

TEST(ClosestWord, PassesOverTheCaseOfLetters) {
  EXPECT_EQ(ClosestWord("RDTDATE", kWords), "rdtDate");
  EXPECT_EQ(ClosestWord("h", kWords), "H");
}

TEST(ClosestWord, IsEmptyWhenNoWordIsNear) {
  EXPECT_EQ(ClosestWord("currency", kWords), "");
  EXPECT_EQ(ClosestWord("X", kWords), "");
  EXPECT_EQ(ClosestWord("", kWords), "");
}

TEST(ClosestWord, IsAskedForInOneSentence) {
  EXPECT_EQ(DidYouMean("rdtdouble", kWords), "; did you mean rdtDouble?");
  EXPECT_EQ(DidYouMean("currency", kWords), "");
}

TEST(ClosestWord, ListsWordsForASentence) {
  EXPECT_EQ(OneOf(kWords), "rdtString, rdtDouble, rdtDate or H");
  EXPECT_EQ(OneOf(std::span(kWords).first(1)), "rdtString");
}

}  // namespace
}  // namespace rangewerks::apps
