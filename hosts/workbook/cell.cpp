#include "hosts/workbook/cell.h"

#include <cmath>
#include <optional>

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "automation/text.h"
#include "hosts/common/cell_errors.h"
#include "hosts/common/typed_entry.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::Date;
using automation::ErrorValue;
using automation::Kind;
using automation::Locale;

constexpr std::size_t kLongestText = 32767;
constexpr std::size_t kLongestFormula = 8192;
constexpr const char* kDateFormat = "m/d/yyyy";
constexpr const char* kDateTimeFormat = "m/d/yyyy h:mm";
constexpr const char* kTimeFormat = "h:mm:ss";

void PutDate(Cell& cell, Date date) {
  if (date.serial < 0) Refuse("A cell can't hold a date before 30 December 1899");
  cell.value = date.serial;
  if (!cell.format.empty()) return;
  const bool midnight = date.serial == std::floor(date.serial);
  cell.format = date.serial < 1 && !midnight ? kTimeFormat
                : midnight                   ? kDateFormat
                                             : kDateTimeFormat;
}

void PutText(Cell& cell, std::string text) {
  if (automation::Length(text) > kLongestText) {
    Refuse("A cell can't hold a text of more than 32767 characters");
  }
  cell.value = std::move(text);
}

void PutNumber(Cell& cell, double number) {
  if (!std::isfinite(number)) Refuse("A cell can't hold a number that is infinite or none");
  cell.value = number;
}

void EnterText(Cell& cell, const std::string& text, const Locale& locale) {
  if (cell.format == kTextFormat) return Put(cell, text);
  if (text.starts_with('\'')) return Put(cell, text.substr(1));
  if (text.starts_with('=') && text.size() > 1) {
    if (automation::Length(text) > kLongestFormula) {
      Refuse("A formula can't have more than 8192 characters");
    }
    cell.formula = text;
    return;
  }
  const TypedEntry entry = ReadTypedEntry(text, locale);
  if (cell.format.empty() && !entry.format.empty()) cell.format = entry.format;
  Put(cell, entry.value);
}

std::string TextOf(const Variant& value, const Locale& locale) {
  if (const auto* boolean = value.TryGet<bool>()) return *boolean ? "TRUE" : "FALSE";
  if (const auto* error = value.TryGet<ErrorValue>()) return CellErrorText(*error);
  return ToString(value, locale);
}

}  // namespace

bool IsDateFormat(std::string_view format) {
  if (automation::EqualText(format, kGeneralFormat)) return false;
  for (std::size_t i = 0; i < format.size(); ++i) {
    switch (format[i]) {
      case '"':
        i = format.find('"', i + 1);
        break;
      case '[':
        i = format.find(']', i + 1);
        break;
      case '\\':
      case '_':
      case '*':
        ++i;
        break;
      case 'y':
      case 'm':
      case 'd':
      case 'h':
      case 's':
      case 'Y':
      case 'M':
      case 'D':
      case 'H':
      case 'S':
        return true;
      default:
        break;
    }
    if (i == std::string_view::npos) return false;
  }
  return false;
}

Variant ShownValue(const Cell& cell) {
  const auto* number = cell.value.TryGet<double>();
  if (number == nullptr || cell.format.empty() || !IsDateFormat(cell.format)) return cell.value;
  return *number < 0 ? cell.value : Variant(Date{*number});
}

std::string EntryText(const Content& content) {
  if (content.IsFormula()) return content.formula;
  return TextOf(content.value, Locale());
}

std::string ShownText(const Cell& cell, const Locale& locale) {
  return TextOf(ShownValue(cell), locale);
}

void Enter(Cell& cell, const Variant& value, const Locale& locale) {
  Cell entered;  // a refused value leaves the cell as it was
  entered.format = cell.format;
  if (const auto* text = value.TryGet<std::string>()) {
    EnterText(entered, *text, locale);
  } else if (cell.format == kTextFormat && !value.IsError() && !value.IsNull()) {
    Put(entered, ToString(value, locale));
  } else {
    Put(entered, value);
  }
  cell = std::move(entered);
}

void Put(Cell& cell, const Variant& value) {
  PutShown(cell, value);
  const auto* text = cell.value.TryGet<std::string>();
  if (text != nullptr && text->empty()) cell.value = {};  // only a formula shows an empty text
  cell.formula.clear();
}

void PutShown(Cell& cell, const Variant& value) {
  switch (value.GetKind()) {
    case Kind::Empty:
    case Kind::Null:
      cell.value = {};
      return;
    case Kind::Integer:
      return PutNumber(cell, *value.TryGet<std::int16_t>());
    case Kind::Long:
      return PutNumber(cell, *value.TryGet<std::int32_t>());
    case Kind::Double:
      return PutNumber(cell, *value.TryGet<double>());
    case Kind::Date:
      return PutDate(cell, *value.TryGet<Date>());
    case Kind::String:
      return PutText(cell, *value.TryGet<std::string>());
    case Kind::Boolean:
    case Kind::Error:
      cell.value = value;
      return;
    case Kind::Object:
    case Kind::Array:
      break;
  }
  Refuse("A cell can't hold a value of the type " + value.TypeName());
}

}  // namespace rangewerks::hosts::workbook
