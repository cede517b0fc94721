#include "automation/conversions.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "automation/dispatch.h"
#include "automation/locales.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Array;
using automation::Date;
using automation::DateOf;
using automation::Error;
using automation::ErrorNumber;
using automation::ErrorValue;
using automation::Invocation;
using automation::IsDate;
using automation::IsNumeric;
using automation::Locale;
using automation::Member;
using automation::Null;
using automation::Object;
using automation::ToBoolean;
using automation::ToDate;
using automation::ToDouble;
using automation::ToInteger;
using automation::ToLong;
using automation::ToString;
using automation::Variant;

/// An object with nothing but a default member.
class Holder final : public automation::Dispatch {
 public:
  explicit Holder(Variant value) : value_(std::move(value)) {}
  std::string TypeName() const override { return "Holder"; }
  Variant Invoke(const Invocation& call) override {
    if (call.member != Member::Default()) throw Error(ErrorNumber::MemberNotFound);
    return value_;
  }

 private:
  Variant value_;
};

/// An object whose default member is the object itself.
class Narcissus final : public automation::Dispatch {
 public:
  std::string TypeName() const override { return "Narcissus"; }
  Variant Invoke(const Invocation& /*call*/) override { return Self(); }
};

/// An object without a default member.
class Bare final : public automation::Dispatch {
 public:
  std::string TypeName() const override { return "Bare"; }
  Variant Invoke(const Invocation& /*call*/) override { throw Error(ErrorNumber::MemberNotFound); }
};

Variant Held(Variant value) { return std::make_shared<Holder>(std::move(value)); }

using Conversion = void (*)(const Variant&);

/// Every conversion there is, for rules that hold for all of them.
const std::vector<Conversion>& AllConversions() {
  static const std::vector<Conversion> conversions = {
      [](const Variant& value) { ToString(value, Locale()); },
      [](const Variant& value) { ToDouble(value, Locale()); },
      [](const Variant& value) { ToInteger(value, Locale()); },
      [](const Variant& value) { ToLong(value, Locale()); },
      [](const Variant& value) { ToBoolean(value, Locale()); },
      [](const Variant& value) { ToDate(value, Locale()); },
  };
  return conversions;
}

void ExpectAllToRaise(const Variant& value, ErrorNumber number) {
  for (const Conversion convert : AllConversions()) {
    const Error error = ErrorOf([&] { convert(value); });
    EXPECT_EQ(error.Number(), static_cast<int>(number));
    EXPECT_EQ(error.Description(), automation::StandardText(static_cast<int>(number)));
  }
}

TEST(Conversions, RefuseNullWithItsOwnNumber) {
  ExpectAllToRaise(Null(), ErrorNumber::InvalidUseOfNull);
}

TEST(Conversions, RefuseErrorValuesOmittedArgumentsAndArrays) {
  ExpectAllToRaise(ErrorValue::FromNumber(2007), ErrorNumber::TypeMismatch);
  ExpectAllToRaise(Variant::Missing(), ErrorNumber::TypeMismatch);
  ExpectAllToRaise(Array(1, 1), ErrorNumber::TypeMismatch);
}

TEST(Conversions, TakeEmptyForTheNothingOfEachKind) {
  EXPECT_EQ(ToString({}, Locale()), "");
  EXPECT_EQ(ToDouble({}, Locale()), 0);
  EXPECT_EQ(ToInteger({}, Locale()), 0);
  EXPECT_EQ(ToLong({}, Locale()), 0);
  EXPECT_FALSE(ToBoolean({}, Locale()));
  EXPECT_EQ(ToDate({}, Locale()), Date{0});
}

TEST(Conversions, TakeTrueForMinusOne) {
  EXPECT_EQ(ToDouble(true, Locale()), -1);
  EXPECT_EQ(ToInteger(true, Locale()), -1);
  EXPECT_EQ(ToLong(true, Locale()), -1);
  EXPECT_EQ(ToLong(false, Locale()), 0);
  EXPECT_EQ(ToDate(true, Locale()), Date{-1});
}

TEST(Conversions, NameBooleansInEnglishInEveryLocale) {
  EXPECT_EQ(ToString(true, DayFirst()), "True");
  EXPECT_EQ(ToString(false, YearFirst()), "False");
}

TEST(Conversions, TakeADateForItsSerialNumber) {
  EXPECT_EQ(ToDouble(Date{45322.25}, Locale()), 45322.25);
  EXPECT_EQ(ToLong(Date{45322.25}, Locale()), 45322);
  EXPECT_TRUE(ErrorOf([] { ToInteger(Date{45322.25}, Locale()); }).Is(ErrorNumber::Overflow));
  EXPECT_TRUE(ToBoolean(Date{1}, Locale()));
  EXPECT_FALSE(ToBoolean(Date{0}, Locale()));
}

TEST(Conversions, KeepAValueOfTheWantedKind) {
  EXPECT_EQ(ToString(" 5 ", Locale()), " 5 ");
  EXPECT_EQ(ToString(std::string("a\0b", 3), Locale()), std::string("a\0b", 3));
  EXPECT_EQ(ToDouble(0.1, Locale()), 0.1);
  EXPECT_EQ(ToInteger(std::int16_t{-32768}, Locale()), -32768);
  EXPECT_EQ(ToLong(2147483647, Locale()), 2147483647);
  EXPECT_TRUE(ToBoolean(true, Locale()));
  EXPECT_EQ(ToDate(Date{45322.25}, Locale()), Date{45322.25});
}

TEST(Conversions, TakeNumbersForDates) {
  EXPECT_EQ(ToDate(45322, Locale()), DateOf(2024, 1, 31));
  EXPECT_EQ(ToDate(std::int16_t{1}, Locale()), DateOf(1899, 12, 31));
  EXPECT_EQ(ToDate(0.5, Locale()), Date{0.5});
}

TEST(ToBoolean, TakesAnyNumberButZeroForTrue) {
  EXPECT_TRUE(ToBoolean(1, Locale()));
  EXPECT_TRUE(ToBoolean(std::int16_t{-1}, Locale()));
  EXPECT_TRUE(ToBoolean(0.1, Locale()));
  EXPECT_FALSE(ToBoolean(0, Locale()));
  EXPECT_FALSE(ToBoolean(0.0, Locale()));
}

TEST(ToBoolean, ReadsItsTwoNamesAndNumbers) {
  for (const char* text : {"True", "TRUE", "true", "#TRUE#", "1", "-1", "0,5", "&H1"}) {
    EXPECT_TRUE(ToBoolean(text, DayFirst())) << text;
  }
  for (const char* text : {"False", "FALSE", "false", "#FALSE#", "0", "0,0", "(0)"}) {
    EXPECT_FALSE(ToBoolean(text, DayFirst())) << text;
  }
  for (const char* text : {"", "yes", "no", "Y", " True", "True ", "#True#", "Wahr", "0x"}) {
    EXPECT_TRUE(ErrorOf([&] { ToBoolean(text, DayFirst()); }).Is(ErrorNumber::TypeMismatch))
        << text;
  }
  EXPECT_TRUE(ErrorOf([] { ToBoolean("1e999", Locale()); }).Is(ErrorNumber::Overflow));
}

TEST(DefaultMembers, StandForTheirObjects) {
  EXPECT_EQ(ToString(Held("text"), Locale()), "text");
  EXPECT_EQ(ToDouble(Held("1,5"), DayFirst()), 1.5);
  EXPECT_EQ(ToInteger(Held("&HFFFF"), Locale()), -1);
  EXPECT_EQ(ToLong(Held(2.5), Locale()), 2);
  EXPECT_TRUE(ToBoolean(Held("True"), Locale()));
  EXPECT_EQ(ToDate(Held("2024-01-31"), Locale()), DateOf(2024, 1, 31));
}

TEST(DefaultMembers, AreFollowedFromObjectToObject) {
  EXPECT_EQ(ToLong(Held(Held(Held(7))), Locale()), 7);
  EXPECT_TRUE(IsNumeric(Held(Held("7")), Locale()));
}

TEST(DefaultMembers, ThatHoldNoConvertibleValueAreRefusedAsTheValueIs) {
  ExpectAllToRaise(Held(Null()), ErrorNumber::InvalidUseOfNull);
  ExpectAllToRaise(Held(ErrorValue::FromNumber(2042)), ErrorNumber::TypeMismatch);
}

TEST(DefaultMembers, ThatNeverEndInAValueAreAMismatch) {
  ExpectAllToRaise(std::make_shared<Narcissus>(), ErrorNumber::TypeMismatch);
}

TEST(DefaultMembers, PassTheirOwnErrorsOn) {
  ExpectAllToRaise(std::make_shared<Bare>(), ErrorNumber::MemberNotFound);
  EXPECT_TRUE(ErrorOf([] {
                IsNumeric(std::make_shared<Bare>(), Locale());
              }).Is(ErrorNumber::MemberNotFound));
}

TEST(DefaultMembers, OfNoObjectAreAnUnsetVariable) {
  ExpectAllToRaise(Object(), ErrorNumber::ObjectVariableNotSet);
  ExpectAllToRaise(Held(Object()), ErrorNumber::ObjectVariableNotSet);
  EXPECT_FALSE(IsNumeric(Object(), Locale()));
  EXPECT_FALSE(IsDate(Object(), Locale()));
}

TEST(IsNumeric, TellsByKind) {
  for (const Variant& value : {Variant(), Variant(true), Variant(std::int16_t{1}), Variant(1),
                               Variant(1.5), Variant("1.5"), Held(1)}) {
    EXPECT_TRUE(IsNumeric(value, Locale())) << value.TypeName();
  }
  for (const Variant& value :
       {Variant(Null()), Variant(Date{1}), Variant("x"), Variant(""), Variant::Missing(),
        Variant(ErrorValue::FromNumber(2007)), Variant(Array(1, 1)), Held(Date{1})}) {
    EXPECT_FALSE(IsNumeric(value, Locale())) << value.TypeName();
  }
}

TEST(IsDate, TellsByKind) {
  for (const Variant& value :
       {Variant(Date{1}), Variant("1/2/2024"), Held(Date{1}), Held("13:45")}) {
    EXPECT_TRUE(IsDate(value, Locale())) << value.TypeName();
  }
  for (const Variant& value :
       {Variant(), Variant(Null()), Variant(1), Variant(45322.0), Variant(true), Variant("45322"),
        Variant::Missing(), Variant(Array(1, 1)), Held(1)}) {
    EXPECT_FALSE(IsDate(value, Locale())) << value.TypeName();
  }
}

}  // namespace
}  // namespace rangewerks::tests
