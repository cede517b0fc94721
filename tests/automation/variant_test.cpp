#include "automation/variant.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "automation/dispatch.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Array;
using automation::Date;
using automation::Error;
using automation::ErrorNumber;
using automation::ErrorValue;
using automation::Invocation;
using automation::Kind;
using automation::Null;
using automation::Object;
using automation::Variant;

class Thing final : public automation::Dispatch {
 public:
  std::string TypeName() const override { return "Thing"; }
  Variant Invoke(const Invocation& /*call*/) override { throw Error(ErrorNumber::MemberNotFound); }
};

TEST(Variant, TellsItsKindAndTheNameOfIt) {
  const std::vector<std::pair<Variant, std::pair<Kind, std::string>>> rows = {
      {{}, {Kind::Empty, "Empty"}},
      {Null(), {Kind::Null, "Null"}},
      {true, {Kind::Boolean, "Boolean"}},
      {std::int16_t{1}, {Kind::Integer, "Integer"}},
      {1, {Kind::Long, "Long"}},
      {1.0, {Kind::Double, "Double"}},
      {Date{1}, {Kind::Date, "Date"}},
      {"text", {Kind::String, "String"}},
      {std::string("text"), {Kind::String, "String"}},
      {std::string_view("text"), {Kind::String, "String"}},
      {ErrorValue::FromNumber(2007), {Kind::Error, "Error"}},
      {Object(), {Kind::Object, "Nothing"}},
      {std::make_shared<Thing>(), {Kind::Object, "Thing"}},
      {Array(1, 1), {Kind::Array, "Variant()"}},
  };
  for (const auto& [value, expected] : rows) {
    EXPECT_EQ(value.GetKind(), expected.first) << expected.second;
    EXPECT_EQ(value.TypeName(), expected.second);
  }
}

TEST(Variant, GivesItsValueOnlyAsItsOwnKind) {
  const Variant value(5);
  EXPECT_EQ(*value.TryGet<std::int32_t>(), 5);
  EXPECT_EQ(value.TryGet<double>(), nullptr);
  EXPECT_EQ(value.TryGet<std::string>(), nullptr);
  EXPECT_TRUE(ErrorOf([&] { value.AsObject(); }).Is(ErrorNumber::ObjectRequired));
  EXPECT_TRUE(ErrorOf([&] { value.AsArray(); }).Is(ErrorNumber::TypeMismatch));
}

TEST(Variant, EqualsAnotherOfTheSameKindAndValueOnly) {
  EXPECT_EQ(Variant(1), Variant(1));
  EXPECT_FALSE(Variant(1) == Variant(1.0));
  EXPECT_FALSE(Variant(1.0) == Variant(Date{1.0}));
  EXPECT_FALSE(Variant() == Variant(""));
  EXPECT_FALSE(Variant("a") == Variant("A"));
  EXPECT_EQ(Variant(Null()), Variant(Null()));
  const auto thing = std::make_shared<Thing>();
  EXPECT_EQ(Variant(thing), Variant(Object(thing)));
  EXPECT_FALSE(Variant(thing) == Variant(std::make_shared<Thing>()));
}

TEST(Variant, EqualsAnotherArrayWithEqualElements) {
  Array left(1, 2);
  Array right(1, 2);
  EXPECT_EQ(Variant(left), Variant(right));
  right.At(1, 2) = 5;
  EXPECT_FALSE(Variant(left) == Variant(right));
  EXPECT_FALSE(Variant(Array(1, 2)) == Variant(Array(2, 1)));
}

TEST(Variant, TellsAnOmittedArgumentFromOtherErrorValues) {
  EXPECT_TRUE(Variant::Missing().IsMissing());
  EXPECT_TRUE(Variant::Missing().IsError());
  EXPECT_FALSE(Variant(ErrorValue::FromNumber(2042)).IsMissing());
  EXPECT_FALSE(Variant().IsMissing());
}

TEST(ErrorValue, CarriesTheSpreadsheetsNumber) {
  EXPECT_EQ(ErrorValue::FromNumber(2007).code, static_cast<std::int32_t>(0x800A07D7U));
  EXPECT_EQ(ErrorValue::FromNumber(2007).Number(), 2007);
  EXPECT_EQ(ErrorValue{static_cast<std::int32_t>(0x80020004U)}.Number(), 0);
}

TEST(Array, IsAddressedByRowAndColumnFromOne) {
  Array block(2, 3);
  block.At(1, 1) = "first";
  block.At(2, 3) = "last";
  EXPECT_EQ(block.Rows(), 2);
  EXPECT_EQ(block.Columns(), 3);
  EXPECT_EQ(block.At(1, 1), Variant("first"));
  EXPECT_EQ(block.At(2, 3), Variant("last"));
  EXPECT_TRUE(block.At(1, 3).IsEmpty());
}

TEST(Array, RefusesPlacesOutsideAndSizesBelowOne) {
  const Array block(2, 3);
  const std::vector<std::pair<int, int>> places = {{0, 1}, {1, 0}, {3, 1}, {1, 4}, {-1, -1}};
  for (const auto& [row, column] : places) {
    const int r = row;
    const int c = column;
    EXPECT_TRUE(ErrorOf([&] { block.At(r, c); }).Is(ErrorNumber::SubscriptOutOfRange));
  }
  EXPECT_TRUE(ErrorOf([] { Array(0, 1); }).Is(ErrorNumber::SubscriptOutOfRange));
  EXPECT_TRUE(ErrorOf([] { Array(1, 0); }).Is(ErrorNumber::SubscriptOutOfRange));
}

}  // namespace
}  // namespace rangewerks::tests
