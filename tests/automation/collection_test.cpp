#include "automation/collection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Collection;
using automation::ErrorNumber;
using automation::ErrorValue;
using ::testing::ElementsAre;

Collection<std::string> Letters() {
  Collection<std::string> letters;
  letters.Add("a", "First");
  letters.Add("b");
  letters.Add("c", "third");
  return letters;
}

template <class Action>
void ExpectRaises(ErrorNumber number, const Action& action) {
  EXPECT_EQ(ErrorOf(action).Number(), static_cast<int>(number));
}

TEST(Collection, KeepsTheOrderOfAdding) {
  const auto letters = Letters();
  EXPECT_EQ(letters.Count(), 3);
  EXPECT_THAT(letters.Items(), ElementsAre("a", "b", "c"));
}

TEST(Collection, AddsBeforeAndBehindAPosition) {
  auto letters = Letters();
  letters.AddBefore(1, "start");
  letters.AddAfter(4, "end");
  letters.AddBefore(3, "between", "key");
  EXPECT_THAT(letters.Items(), ElementsAre("start", "a", "between", "b", "c", "end"));
  EXPECT_EQ(letters.At("KEY"), "between");
}

TEST(Collection, FindsByPositionCountedFromOne) {
  const auto letters = Letters();
  EXPECT_EQ(letters.At(1), "a");
  EXPECT_EQ(letters.At(3), "c");
  EXPECT_EQ(letters.At(2.5), "b") << "halves go to the even number";
  EXPECT_EQ(letters.At(std::int16_t{2}), "b");
}

TEST(Collection, FindsByKeyWithoutRegardToCase) {
  const auto letters = Letters();
  EXPECT_EQ(letters.At("FIRST"), "a");
  EXPECT_EQ(letters.At("Third"), "c");
  EXPECT_EQ(*letters.TryAt("tHIRD"), "c");
  EXPECT_EQ(letters.TryAt("second"), nullptr);
}

TEST(Collection, TakesATextForAKeyEvenWhenItReadsAsNumber) {
  auto letters = Letters();
  letters.Add("d", "1");
  EXPECT_EQ(letters.At("1"), "d");
  ExpectRaises(ErrorNumber::InvalidProcedureCall, [&] { letters.At("2"); });
}

TEST(Collection, TellsUnknownKeysPositionsAndOtherValuesApart) {
  auto letters = Letters();
  ExpectRaises(ErrorNumber::InvalidProcedureCall, [&] { letters.At("none"); });
  for (const int position : {0, 4, -1}) {
    ExpectRaises(ErrorNumber::SubscriptOutOfRange, [&] { letters.At(position); });
    ExpectRaises(ErrorNumber::SubscriptOutOfRange, [&] { letters.Remove(position); });
  }
  ExpectRaises(ErrorNumber::TypeMismatch, [&] { letters.At(ErrorValue::FromNumber(2042)); });
  ExpectRaises(ErrorNumber::InvalidProcedureCall, [&] { letters.Remove("none"); });
}

TEST(Collection, RefusesAKeyThatDiffersInCaseOnlyAndStaysAsItWas) {
  auto letters = Letters();
  ExpectRaises(ErrorNumber::KeyAlreadyExists, [&] { letters.Add("x", "fIRST"); });
  ExpectRaises(ErrorNumber::KeyAlreadyExists, [&] { letters.AddBefore(1, "x", "FIRST"); });
  ExpectRaises(ErrorNumber::SubscriptOutOfRange, [&] { letters.AddBefore(4, "x", "new"); });
  ExpectRaises(ErrorNumber::SubscriptOutOfRange, [&] { letters.AddAfter(0, "x", "new"); });
  EXPECT_THAT(letters.Items(), ElementsAre("a", "b", "c"));
  EXPECT_EQ(letters.At("first"), "a");
  EXPECT_EQ(letters.TryAt("new"), nullptr);
}

TEST(Collection, TakesAnEmptyKeyForAKeyLikeAnyOther) {
  Collection<int> numbers;
  numbers.Add(1, "");
  EXPECT_EQ(numbers.At(""), 1);
  ExpectRaises(ErrorNumber::KeyAlreadyExists, [&] { numbers.Add(2, ""); });
  numbers.Add(3);
  numbers.Add(4);
  EXPECT_EQ(numbers.Count(), 3) << "no key is no empty key";
}

TEST(Collection, RemovesByPositionOrKeyAndFreesTheKey) {
  auto letters = Letters();
  letters.Remove("FIRST");
  EXPECT_THAT(letters.Items(), ElementsAre("b", "c"));
  letters.Remove(2);
  EXPECT_THAT(letters.Items(), ElementsAre("b"));
  letters.Add("again", "third");
  letters.Add("anew", "first");
  EXPECT_EQ(letters.At("third"), "again");
  EXPECT_EQ(letters.At(3), "anew");
}

TEST(Collection, IsEmptyOnceItsFirstEntryIsRemovedOftenEnough) {
  Collection<int> numbers;
  for (int i = 0; i < 1000; ++i) numbers.Add(i, "key " + std::to_string(i));
  for (int i = 0; i < 1000; ++i) {
    ASSERT_EQ(numbers.At(1), i);
    numbers.Remove(1);
  }
  EXPECT_EQ(numbers.Count(), 0);
  EXPECT_EQ(numbers.TryAt("key 500"), nullptr);
}

}  // namespace
}  // namespace rangewerks::tests
