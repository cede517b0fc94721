#include "com/bridge/values.h"

#include <array>
#include <cstring>
#include <limits>
#include <string>
#include <utility>

#include "automation/error.h"
#include "automation/locale.h"
#include "com/bridge/arrays.h"
#include "com/bridge/failures.h"
#include "com/bridge/objects.h"
#include "com/bridge/text.h"

namespace rangewerks::com {
namespace {

using automation::ErrorNumber;
using automation::ErrorValue;

template <class T>
Variant FromWhole(T value) {
  using Limits = std::numeric_limits<std::int32_t>;
  if constexpr (sizeof(T) >= sizeof(std::int32_t)) {
    if (std::cmp_less(value, Limits::min()) || std::cmp_greater(value, Limits::max())) {
      return static_cast<double>(value);
    }
  }
  return static_cast<std::int32_t>(value);
}

Variant FromDecimal(const VARIANT& value) {
  double result = 0;
  Require(VarR8FromDec(const_cast<DECIMAL*>(&V_DECIMAL(&value)), &result));
  return result;
}

Variant FromCurrency(CY value) {
  double result = 0;
  Require(VarR8FromCy(value, &result));
  return result;
}

Variant FromScode(SCODE code) {
  return code == DISP_E_PARAMNOTFOUND ? Variant::Missing() : Variant(ErrorValue{code});
}

/// What a by-reference VARIANT refers to, as a VARIANT that owns nothing of it.
VARIANT Referred(const VARIANT& reference) {
  VARIANT result;
  VariantInit(&result);
  const auto type = static_cast<VARTYPE>(V_VT(&reference) & ~VT_BYREF);
  if (type == VT_DECIMAL) {
    V_DECIMAL(&result) = *V_DECIMALREF(&reference);
  } else {
    std::memcpy(&V_UI1(&result), V_BYREF(&reference), SizeOfElement(type));
  }
  V_VT(&result) = type;
  return result;
}

}  // namespace

Variant FromVariant(const VARIANT& value) {
  const VARTYPE type = V_VT(&value);
  if (type == (VT_BYREF | VT_VARIANT)) return FromVariant(*V_VARIANTREF(&value));
  if ((type & VT_BYREF) != 0) {
    if (V_BYREF(&value) == nullptr) throw automation::Error(ErrorNumber::TypeMismatch);
    return FromVariant(Referred(value));
  }
  if ((type & VT_ARRAY) != 0) return FromSafeArray(V_ARRAY(&value), type & VT_TYPEMASK);
  switch (type) {
    case VT_EMPTY:
      return {};
    case VT_NULL:
      return automation::Null{};
    case VT_BOOL:
      return V_BOOL(&value) != VARIANT_FALSE;
    case VT_I1:
      return static_cast<std::int16_t>(V_I1(&value));
    case VT_UI1:
      return static_cast<std::int16_t>(V_UI1(&value));
    case VT_I2:
      return static_cast<std::int16_t>(V_I2(&value));
    case VT_UI2:
      return FromWhole(V_UI2(&value));
    case VT_I4:
    case VT_INT:
      return FromWhole(V_I4(&value));
    case VT_UI4:
    case VT_UINT:
      return FromWhole(V_UI4(&value));
    case VT_I8:
      return FromWhole(V_I8(&value));
    case VT_UI8:
      return FromWhole(V_UI8(&value));
    case VT_R4:
      return static_cast<double>(V_R4(&value));
    case VT_R8:
      return V_R8(&value);
    case VT_CY:
      return FromCurrency(V_CY(&value));
    case VT_DECIMAL:
      return FromDecimal(value);
    case VT_DATE:
      return automation::Date{V_DATE(&value)};
    case VT_BSTR:
      return FromBstr(V_BSTR(&value));
    case VT_ERROR:
      return FromScode(V_ERROR(&value));
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return FromUnknown(V_UNKNOWN(&value));
    default:
      throw automation::Error(ErrorNumber::TypeMismatch);
  }
}

void ToVariant(const Variant& value, VARIANT& result) {
  using automation::Kind;
  VariantInit(&result);
  switch (value.GetKind()) {
    case Kind::Empty:
      return;
    case Kind::Null:
      V_VT(&result) = VT_NULL;
      return;
    case Kind::Boolean:
      V_VT(&result) = VT_BOOL;
      V_BOOL(&result) = *value.TryGet<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
      return;
    case Kind::Integer:
      V_VT(&result) = VT_I2;
      V_I2(&result) = *value.TryGet<std::int16_t>();
      return;
    case Kind::Long:
      V_VT(&result) = VT_I4;
      V_I4(&result) = *value.TryGet<std::int32_t>();
      return;
    case Kind::Double:
      V_VT(&result) = VT_R8;
      V_R8(&result) = *value.TryGet<double>();
      return;
    case Kind::Date:
      V_VT(&result) = VT_DATE;
      V_DATE(&result) = value.TryGet<automation::Date>()->serial;
      return;
    case Kind::String:
      V_BSTR(&result) = ToBstr(*value.TryGet<std::string>());
      V_VT(&result) = VT_BSTR;
      return;
    case Kind::Error:
      V_VT(&result) = VT_ERROR;
      V_ERROR(&result) =
          value.IsMissing() ? DISP_E_PARAMNOTFOUND : value.TryGet<ErrorValue>()->code;
      return;
    case Kind::Object: {
      const auto unknown = ToUnknown(value.AsObject());
      if (auto dispatch = unknown.TryQuery<IDispatch>(); dispatch || !unknown) {
        V_DISPATCH(&result) = dispatch.Detach();
        V_VT(&result) = VT_DISPATCH;
      } else {
        V_UNKNOWN(&result) = Pointer(unknown).Detach();
        V_VT(&result) = VT_UNKNOWN;
      }
      return;
    }
    case Kind::Array:
      V_ARRAY(&result) = ToSafeArray(value.AsArray());
      V_VT(&result) = VT_ARRAY | VT_VARIANT;
      return;
  }
}

void AssignThrough(const VARIANT& reference, const Variant& value) {
  const VARTYPE type = V_VT(&reference);
  if ((type & VT_BYREF) == 0) return;
  OwnedVariant given;
  ToVariant(value, *given);
  if (type == (VT_BYREF | VT_VARIANT)) {
    VARIANT& variable = *V_VARIANTREF(&reference);
    // A script passes a variable as a reference to a variant that refers to it in turn.
    if ((V_VT(&variable) & VT_BYREF) != 0) return AssignThrough(variable, value);
    Require(VariantCopy(&variable, &given));
    return;
  }
  const auto own = static_cast<VARTYPE>(type & ~VT_BYREF);
  OwnedVariant converted;
  if ((own & VT_ARRAY) != 0) {
    if (V_VT(&given) != own) throw automation::Error(ErrorNumber::TypeMismatch);
    Require(VariantCopy(&converted, &given));
  } else {
    Require(VariantChangeType(&converted, &given, VARIANT_ALPHABOOL, own));
  }
  if (own == VT_DECIMAL) {
    *V_DECIMALREF(&reference) = V_DECIMAL(&*converted);
    return;
  }
  // The variable's old content leaves with `converted`.
  const std::size_t size = SizeOfElement(own);
  std::array<unsigned char, sizeof(VARIANT)> old{};
  std::memcpy(old.data(), V_BYREF(&reference), size);
  std::memcpy(V_BYREF(&reference), &V_UI1(&*converted), size);
  std::memcpy(&V_UI1(&*converted), old.data(), size);
}

}  // namespace rangewerks::com
