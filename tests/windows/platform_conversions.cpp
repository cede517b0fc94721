#include "windows/platform_conversions.h"

#include <oleauto.h>

#include <array>

#include "com/bridge/text.h"

namespace rangewerks::tests {
namespace {

using com::Bstr;

constexpr ULONG kFlags = 0;

std::int32_t FailureOf(HRESULT result) {
  switch (result) {
    case DISP_E_TYPEMISMATCH:
      return 13;
    case DISP_E_OVERFLOW:
      return 6;
    case E_INVALIDARG:
      return 5;
    default:
      return result;
  }
}

template <class Number>
Outcome NumberOr(HRESULT result, Number number) {
  if (FAILED(result)) return Outcome::OfFailure(FailureOf(result));
  return Outcome::OfNumber(static_cast<double>(number));
}

template <class Number, class Convert>
Outcome NumberOfText(Convert convert, const std::string& text, LCID locale) {
  Number number{};
  const HRESULT result = convert(Bstr(text).Get(), locale, kFlags, &number);
  return NumberOr(result, number);
}

template <class Number, class Convert>
Outcome NumberOfNumber(Convert convert, double value) {
  Number number{};
  const HRESULT result = convert(value, &number);
  return NumberOr(result, number);
}

Outcome TextOr(HRESULT result, const Bstr& text) {
  if (FAILED(result)) return Outcome::OfFailure(FailureOf(result));
  return Outcome::OfText(text.Text());
}

}  // namespace

Outcome PlatformConversions::DoubleOf(const std::string& text) const {
  return NumberOfText<double>(VarR8FromStr, text, locale_);
}

Outcome PlatformConversions::IntegerOf(const std::string& text) const {
  return NumberOfText<SHORT>(VarI2FromStr, text, locale_);
}

Outcome PlatformConversions::LongOf(const std::string& text) const {
  return NumberOfText<LONG>(VarI4FromStr, text, locale_);
}

Outcome PlatformConversions::BooleanOf(const std::string& text) const {
  return NumberOfText<VARIANT_BOOL>(VarBoolFromStr, text, locale_);
}

Outcome PlatformConversions::DateOf(const std::string& text) const {
  return NumberOfText<DATE>(VarDateFromStr, text, locale_);
}

Outcome PlatformConversions::TextOf(double number) const {
  Bstr text;
  const HRESULT result = VarBstrFromR8(number, locale_, kFlags, text.Receive());
  return TextOr(result, text);
}

Outcome PlatformConversions::TextOf(std::int32_t number) const {
  Bstr text;
  const HRESULT result = VarBstrFromI4(number, locale_, kFlags, text.Receive());
  return TextOr(result, text);
}

Outcome PlatformConversions::TextOf(std::int16_t number) const {
  Bstr text;
  const HRESULT result = VarBstrFromI2(number, locale_, kFlags, text.Receive());
  return TextOr(result, text);
}

Outcome PlatformConversions::TextOf(bool truth) const {
  Bstr text;
  const HRESULT result =
      VarBstrFromBool(truth ? VARIANT_TRUE : VARIANT_FALSE, locale_, kFlags, text.Receive());
  return TextOr(result, text);
}

Outcome PlatformConversions::IntegerOf(double number) const {
  return NumberOfNumber<SHORT>(VarI2FromR8, number);
}

Outcome PlatformConversions::LongOf(double number) const {
  return NumberOfNumber<LONG>(VarI4FromR8, number);
}

Outcome PlatformConversions::BooleanOf(double number) const {
  return NumberOfNumber<VARIANT_BOOL>(VarBoolFromR8, number);
}

Outcome PlatformConversions::DateOf(double number) const {
  VARIANT from;
  V_VT(&from) = VT_R8;
  V_R8(&from) = number;
  VARIANT to;
  VariantInit(&to);
  const HRESULT result = VariantChangeTypeEx(&to, &from, locale_, 0, VT_DATE);
  return NumberOr(result, SUCCEEDED(result) ? V_DATE(&to) : 0);
}

Outcome PlatformConversions::Rounded(double number, int places) {
  double rounded = 0;
  const HRESULT result = VarR8Round(number, places, &rounded);
  return NumberOr(result, rounded);
}

Outcome PlatformConversions::TextOfDate(double serial) const {
  Bstr text;
  const HRESULT result = VarBstrFromDate(serial, locale_, kFlags, text.Receive());
  return TextOr(result, text);
}

Outcome PlatformConversions::FormattedDate(double serial, const std::string& pattern) const {
  const Bstr format(pattern);
  std::array<BYTE, 512> tokens{};
  HRESULT result = VarTokenizeFormatString(format.Get(), tokens.data(),
                                           static_cast<int>(tokens.size()), 0, 0, locale_, nullptr);
  if (FAILED(result)) return Outcome::OfFailure(FailureOf(result));
  VARIANT date;
  V_VT(&date) = VT_DATE;
  V_DATE(&date) = serial;
  Bstr text;
  result = VarFormatFromTokens(&date, format.Get(), tokens.data(), 0, text.Receive(), locale_);
  return TextOr(result, text);
}

}  // namespace rangewerks::tests
