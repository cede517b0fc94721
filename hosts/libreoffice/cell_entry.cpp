#include "hosts/libreoffice/cell_entry.h"

#include <cmath>

#include "automation/conversions.h"
#include "automation/text.h"
#include "hosts/common/cell_errors.h"
#include "hosts/common/typed_entry.h"
#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::Date;
using automation::Kind;
using automation::Locale;
using automation::Variant;

constexpr std::size_t kLongestText = 32767;
constexpr std::size_t kLongestFormula = 8192;

CellEntry TextEntry(std::string text) {
  if (automation::Length(text) > kLongestText) {
    Fail("A cell can't hold a text of more than 32767 characters");
  }
  if (text.empty()) return {};
  return {CellEntry::Kind::Text, 0, std::move(text), {}};
}

CellEntry NumberEntry(double number) {
  if (!std::isfinite(number)) Fail("A cell can't hold a number that is infinite or none");
  return {CellEntry::Kind::Number, number, {}, {}};
}

CellEntry DateEntry(Date date, double firstDay) {
  if (date.serial < 0) Fail("A cell can't hold a date before 30 December 1899");
  CellEntry entry = NumberEntry(date.serial - firstDay);
  const bool midnight = date.serial == std::floor(date.serial);
  entry.format = midnight ? "m/d/yyyy" : date.serial < 1 ? "h:mm:ss" : "m/d/yyyy h:mm";
  return entry;
}

CellEntry ConstantEntry(const std::string& formula) {
  return {CellEntry::Kind::Constant, 0, formula, {}};
}

CellEntry PlainEntry(const Variant& value, double firstDay) {
  switch (value.GetKind()) {
    case Kind::Empty:
    case Kind::Null:
      return {};
    case Kind::Boolean:
      return ConstantEntry(*value.TryGet<bool>() ? "=TRUE()" : "=FALSE()");
    case Kind::Integer:
      return NumberEntry(*value.TryGet<std::int16_t>());
    case Kind::Long:
      return NumberEntry(*value.TryGet<std::int32_t>());
    case Kind::Double:
      return NumberEntry(*value.TryGet<double>());
    case Kind::Date:
      return DateEntry(*value.TryGet<Date>(), firstDay);
    case Kind::String:
      return TextEntry(*value.TryGet<std::string>());
    case Kind::Error:
      return ConstantEntry("=" + CellErrorText(*value.TryGet<automation::ErrorValue>()));
    case Kind::Object:
    case Kind::Array:
      break;
  }
  Fail("A cell can't hold a value of the type " + value.TypeName());
}

CellEntry FormulaEntry(const std::string& text) {
  if (automation::Length(text) > kLongestFormula) {
    Fail("A formula can't have more than 8192 characters");
  }
  const std::string formula = text.substr(1);
  if (CellErrorOf(formula)) return ConstantEntry(text);
  return {CellEntry::Kind::Formula, 0, formula, {}};
}

CellEntry TypedText(const std::string& text, const Locale& locale, double firstDay) {
  if (text.starts_with('\'')) return TextEntry(text.substr(1));
  if (text.starts_with('=') && text.size() > 1) return FormulaEntry(text);
  TypedEntry typed = ReadTypedEntry(text, locale);
  CellEntry entry = PlainEntry(typed.value, firstDay);
  if (!typed.format.empty()) entry.format = std::move(typed.format);
  return entry;
}

}  // namespace

CellEntry EntryOf(const Variant& value, FormatKind format, const Locale& locale, double firstDay) {
  const auto* text = value.TryGet<std::string>();
  if (format == FormatKind::Text && !value.IsError() && !value.IsNull()) {
    return TextEntry(text != nullptr ? *text : ToString(value, locale));
  }
  return text != nullptr ? TypedText(*text, locale, firstDay) : PlainEntry(value, firstDay);
}

}  // namespace rangewerks::hosts::libreoffice
