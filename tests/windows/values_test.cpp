#include "com/bridge/values.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "automation/error.h"
#include "com/bridge/owners.h"
#include "com/bridge/text.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Array;
using automation::Date;
using automation::ErrorValue;
using automation::Null;
using automation::Variant;
using com::FromVariant;
using com::OwnedVariant;

Variant OutAndBack(const Variant& value) {
  OwnedVariant crossed;
  com::ToVariant(value, *crossed);
  return FromVariant(*crossed);
}

VARTYPE TypeOutside(const Variant& value) {
  OwnedVariant crossed;
  com::ToVariant(value, *crossed);
  return V_VT(&crossed);
}

TEST(Values, EveryKindComesBackAsItWent) {
  Array block(2, 3);
  block.At(1, 1) = 12.5;
  block.At(2, 1) = "text";
  block.At(1, 3) = ErrorValue::FromNumber(2042);
  const std::vector<Variant> values{{},
                                    Null{},
                                    true,
                                    false,
                                    std::int16_t{-32768},
                                    123456,
                                    0.1,
                                    -0.0,
                                    Date{45000.25},
                                    "",
                                    "grün € 𝄞",
                                    std::string("a\0b", 3),
                                    ErrorValue::FromNumber(2007),
                                    automation::Object(),
                                    Variant(block),
                                    Variant::Missing()};
  for (const Variant& value : values) EXPECT_EQ(OutAndBack(value), value) << value.TypeName();
}

TEST(Values, EachKindHasItsTypeOutside) {
  EXPECT_EQ(TypeOutside({}), VT_EMPTY);
  EXPECT_EQ(TypeOutside(Null{}), VT_NULL);
  EXPECT_EQ(TypeOutside(true), VT_BOOL);
  EXPECT_EQ(TypeOutside(std::int16_t{1}), VT_I2);
  EXPECT_EQ(TypeOutside(std::int32_t{1}), VT_I4);
  EXPECT_EQ(TypeOutside(1.0), VT_R8);
  EXPECT_EQ(TypeOutside(Date{1}), VT_DATE);
  EXPECT_EQ(TypeOutside("x"), VT_BSTR);
  EXPECT_EQ(TypeOutside(ErrorValue::FromNumber(2007)), VT_ERROR);
  EXPECT_EQ(TypeOutside(Variant::Missing()), VT_ERROR);
  EXPECT_EQ(TypeOutside(automation::Object()), VT_DISPATCH);
  EXPECT_EQ(TypeOutside(Array(1, 1)), VT_ARRAY | VT_VARIANT);
}

TEST(Values, HalfASurrogatePairSurvives) {
  const std::wstring broken{L'a', static_cast<wchar_t>(0xD834), L'b', static_cast<wchar_t>(0xDD1E)};
  EXPECT_EQ(com::ToWide(com::FromWide(broken)), broken);
}

TEST(Values, BytesThatAreNoTextBecomeReplacementCharacters) {
  EXPECT_EQ(com::ToWide("a\xFF\xC3"), (std::wstring{L'a', 0xFFFD, 0xFFFD}));
  EXPECT_EQ(com::ToWide("\xC0\x80"), (std::wstring{0xFFFD, 0xFFFD}));  // an overlong NUL
}

TEST(Values, OtherNumbersBecomeTheNearestKindThatHoldsThem) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_UI1;
  V_UI1(&value) = 255;
  EXPECT_EQ(FromVariant(value), Variant(std::int16_t{255}));
  V_VT(&value) = VT_UI2;
  V_UI2(&value) = 65535;
  EXPECT_EQ(FromVariant(value), Variant(std::int32_t{65535}));
  V_VT(&value) = VT_UI4;
  V_UI4(&value) = 4294967295U;
  EXPECT_EQ(FromVariant(value), Variant(4294967295.0));
  V_VT(&value) = VT_I8;
  V_I8(&value) = -5;
  EXPECT_EQ(FromVariant(value), Variant(std::int32_t{-5}));
  V_I8(&value) = 9007199254740992;
  EXPECT_EQ(FromVariant(value), Variant(9007199254740992.0));
  V_VT(&value) = VT_R4;
  V_R4(&value) = 0.5F;
  EXPECT_EQ(FromVariant(value), Variant(0.5));
}

TEST(Values, MoneyKeepsItsFourPlaces) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_CY;
  V_CY(&value).int64 = 12345678901234;  // 1,234,567,890.1234
  EXPECT_EQ(FromVariant(value), Variant(1234567890.1234));
  V_CY(&value).int64 = -1;
  EXPECT_EQ(FromVariant(value), Variant(-0.0001));
}

TEST(Values, DecimalsAreRead) {
  VARIANT value;
  VariantInit(&value);
  ASSERT_EQ(VarDecFromR8(1234.56, &V_DECIMAL(&value)), S_OK);
  V_VT(&value) = VT_DECIMAL;
  EXPECT_EQ(FromVariant(value), Variant(1234.56));
}

TEST(Values, ReferencesAreFollowedOverTwoLevels) {
  VARIANT inner;
  VariantInit(&inner);
  double number = 2.5;
  V_VT(&inner) = VT_BYREF | VT_R8;
  V_R8REF(&inner) = &number;
  VARIANT outer;
  VariantInit(&outer);
  V_VT(&outer) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&outer) = &inner;
  EXPECT_EQ(FromVariant(outer), Variant(2.5));
  com::AssignThrough(outer, 7.25);
  EXPECT_EQ(number, 7.25);
}

TEST(Values, AVariableTakesAValueInItsOwnType) {
  com::Bstr text("old");
  VARIANT reference;
  VariantInit(&reference);
  V_VT(&reference) = VT_BYREF | VT_BSTR;
  BSTR own = com::ToBstr("old");
  V_BSTRREF(&reference) = &own;
  com::AssignThrough(reference, 12.0);
  EXPECT_EQ(com::FromBstr(own), "12");
  SysFreeString(own);

  LONG number = 1;
  V_VT(&reference) = VT_BYREF | VT_I4;
  V_I4REF(&reference) = &number;
  com::AssignThrough(reference, 41.0);
  EXPECT_EQ(number, 41);
  EXPECT_EQ(ErrorOf([&] { com::AssignThrough(reference, "no number"); }).Number(), 13);
  EXPECT_EQ(number, 41);
}

TEST(Values, ArraysOfOneDimensionAreARowAndOtherTypesAreRead) {
  SAFEARRAY* numbers = SafeArrayCreateVector(VT_R8, 0, 3);
  for (LONG i = 0; i < 3; ++i) {
    double element = 1.5 * i;
    SafeArrayPutElement(numbers, &i, &element);
  }
  OwnedVariant value;
  V_VT(&value) = VT_ARRAY | VT_R8;
  V_ARRAY(&value) = numbers;
  const Array block = FromVariant(*value).AsArray();
  ASSERT_EQ(block.Rows(), 1);
  ASSERT_EQ(block.Columns(), 3);
  EXPECT_EQ(block.At(1, 3), Variant(3.0));
}

TEST(Values, ABlockKeepsItsRowsAndColumnsApart) {
  Array block(2, 2);
  block.At(1, 2) = "right";
  block.At(2, 1) = "below";
  OwnedVariant crossed;
  com::ToVariant(block, *crossed);
  std::array<LONG, 2> place{2, 1};
  OwnedVariant element;
  ASSERT_EQ(SafeArrayGetElement(V_ARRAY(&crossed), place.data(), &element), S_OK);
  EXPECT_EQ(FromVariant(*element), Variant("below"));
}

TEST(Values, WhatHasNoCounterpartIsATypeMismatch) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_RECORD;
  EXPECT_EQ(ErrorOf([&] { FromVariant(value); }).Number(), 13);
  OwnedVariant empty;
  V_VT(&empty) = VT_ARRAY | VT_R8;
  V_ARRAY(&empty) = SafeArrayCreateVector(VT_R8, 0, 0);
  EXPECT_EQ(ErrorOf([&] { FromVariant(*empty); }).Number(), 13);
  std::array bounds{SAFEARRAYBOUND{1, 0}, SAFEARRAYBOUND{1, 0}, SAFEARRAYBOUND{1, 0}};
  OwnedVariant cube;
  V_VT(&cube) = VT_ARRAY | VT_VARIANT;
  V_ARRAY(&cube) = SafeArrayCreate(VT_VARIANT, 3, bounds.data());
  EXPECT_EQ(ErrorOf([&] { FromVariant(*cube); }).Number(), 13);
}

}  // namespace
}  // namespace rangewerks::tests
