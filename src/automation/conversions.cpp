#include "automation/conversions.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

#include "automation/calendar.h"
#include "automation/date_text.h"
#include "automation/dispatch.h"
#include "automation/error.h"
#include "automation/number_text.h"
#include "automation/text.h"

namespace rangewerks::automation {
namespace {

constexpr int kMostDefaults =
    16;  // an object whose default member is itself must not hang a caller

/// What the object in the value stands for: the value of its default member.
Variant DefaultValue(const Variant& value) {
  Variant result = value.AsObject().Get(Member::Default());
  for (int i = 1; result.IsObject(); ++i) {
    if (i == kMostDefaults) throw Error(ErrorNumber::TypeMismatch);
    result = Variant(result.AsObject().Get(Member::Default()));
  }
  return result;
}

[[noreturn]] void Refuse(const Variant& value) {
  throw Error(value.IsNull() ? ErrorNumber::InvalidUseOfNull : ErrorNumber::TypeMismatch);
}

double Checked(const NumberRead& read) {
  if (read.outcome == ReadOutcome::Mismatch) throw Error(ErrorNumber::TypeMismatch);
  if (read.outcome == ReadOutcome::Overflow) throw Error(ErrorNumber::Overflow);
  return read.value;
}

std::string DateToString(Date date, const Locale& locale) {
  const DateParts parts = PartsOf(date);
  const bool isDayZero = parts.year == 1899 && parts.month == 12 && parts.day == 30;
  if (isDayZero) return FormatDate(date, locale.longTime, locale);
  std::string text = FormatDate(date, locale.shortDate, locale);
  if (!parts.IsMidnight()) text.append(" ").append(FormatDate(date, locale.longTime, locale));
  return text;
}

template <class Integer>
Integer Narrow(double value) {
  const double rounded = std::nearbyint(value);
  const bool fits = rounded >= std::numeric_limits<Integer>::min() &&
                    rounded <= std::numeric_limits<Integer>::max();
  if (!fits) throw Error(ErrorNumber::Overflow);
  return static_cast<Integer>(rounded);
}

/// A bit pattern may set the integer's own sign bit: "&HFFFF" is the 16-bit -1.
template <class Integer>
Integer TextToWhole(const std::string& text, const Locale& locale) {
  const NumberRead read = ReadNumber(text, locale);
  const double value = Checked(read);
  if (!read.isBitPattern) return Narrow<Integer>(value);
  using Bits = std::make_unsigned_t<Integer>;
  if (read.bits > std::numeric_limits<Bits>::max()) throw Error(ErrorNumber::Overflow);
  return static_cast<Integer>(static_cast<Bits>(read.bits));
}

template <class Integer>
Integer ToWhole(const Variant& value, const Locale& locale) {
  if (value.IsObject()) return ToWhole<Integer>(DefaultValue(value), locale);
  if (const auto* text = value.TryGet<std::string>()) return TextToWhole<Integer>(*text, locale);
  return Narrow<Integer>(ToDouble(value, locale));
}

}  // namespace

std::string ToString(const Variant& value, const Locale& locale) {
  switch (value.GetKind()) {
    case Kind::Empty:
      return {};
    case Kind::Boolean:
      return *value.TryGet<bool>() ? "True" : "False";
    case Kind::Integer:
      return std::to_string(*value.TryGet<std::int16_t>());
    case Kind::Long:
      return std::to_string(*value.TryGet<std::int32_t>());
    case Kind::Double:
      return WriteNumber(*value.TryGet<double>(), locale);
    case Kind::Date:
      return DateToString(*value.TryGet<Date>(), locale);
    case Kind::String:
      return *value.TryGet<std::string>();
    case Kind::Object:
      return ToString(DefaultValue(value), locale);
    case Kind::Null:
    case Kind::Error:
    case Kind::Array:
      break;
  }
  Refuse(value);
}

double ToDouble(const Variant& value, const Locale& locale) {
  switch (value.GetKind()) {
    case Kind::Empty:
      return 0;
    case Kind::Boolean:
      return *value.TryGet<bool>() ? -1 : 0;
    case Kind::Integer:
      return *value.TryGet<std::int16_t>();
    case Kind::Long:
      return *value.TryGet<std::int32_t>();
    case Kind::Double:
      return *value.TryGet<double>();
    case Kind::Date:
      return value.TryGet<Date>()->serial;
    case Kind::String:
      return Checked(ReadNumber(*value.TryGet<std::string>(), locale));
    case Kind::Object:
      return ToDouble(DefaultValue(value), locale);
    case Kind::Null:
    case Kind::Error:
    case Kind::Array:
      break;
  }
  Refuse(value);
}

std::int16_t ToInteger(const Variant& value, const Locale& locale) {
  return ToWhole<std::int16_t>(value, locale);
}

std::int32_t ToLong(const Variant& value, const Locale& locale) {
  return ToWhole<std::int32_t>(value, locale);
}

bool ToBoolean(const Variant& value, const Locale& locale) {
  if (value.IsObject()) return ToBoolean(DefaultValue(value), locale);
  if (const auto* text = value.TryGet<std::string>()) {
    if (EqualText(*text, "True") || *text == "#TRUE#") return true;
    if (EqualText(*text, "False") || *text == "#FALSE#") return false;
  }
  return ToDouble(value, locale) != 0;
}

Date ToDate(const Variant& value, const Locale& locale) {
  if (value.IsObject()) return ToDate(DefaultValue(value), locale);
  if (const auto* text = value.TryGet<std::string>()) {
    const auto date = ReadDate(*text, locale);
    if (!date) throw Error(ErrorNumber::TypeMismatch);
    return *date;
  }
  const Date date{ToDouble(value, locale)};
  if (!IsInRange(date)) throw Error(ErrorNumber::Overflow);
  return date;
}

bool IsNumeric(const Variant& value, const Locale& locale) {
  switch (value.GetKind()) {
    case Kind::Empty:
    case Kind::Boolean:
    case Kind::Integer:
    case Kind::Long:
    case Kind::Double:
      return true;
    case Kind::String:
      return ReadNumber(*value.TryGet<std::string>(), locale).outcome == ReadOutcome::Read;
    case Kind::Object:
      return value.AsObject() && IsNumeric(DefaultValue(value), locale);
    case Kind::Null:
    case Kind::Date:
    case Kind::Error:
    case Kind::Array:
      break;
  }
  return false;
}

bool IsDate(const Variant& value, const Locale& locale) {
  if (value.IsObject()) return value.AsObject() && IsDate(DefaultValue(value), locale);
  if (const auto* text = value.TryGet<std::string>()) return ReadDate(*text, locale).has_value();
  return value.GetKind() == Kind::Date;
}

}  // namespace rangewerks::automation
