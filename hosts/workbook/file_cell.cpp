#include "hosts/workbook/file_cell.h"

#include <cstdlib>

#include "automation/conversions.h"
#include "hosts/workbook/cell_errors.h"

namespace rangewerks::hosts::workbook {
namespace {

constexpr std::int64_t kLargestExactInteger = std::int64_t{1} << 53;

constexpr double kSecondsOfDay = 86400;

/// The digits at a place of a text as a number; -1 when they aren't all digits.
int Digits(const std::string& text, std::size_t from, std::size_t count) {
  int number = 0;
  for (std::size_t i = from; i < from + count; ++i) {
    if (i >= text.size() || text[i] < '0' || text[i] > '9') return -1;
    number = number * 10 + (text[i] - '0');
  }
  return number;
}

/// "2024-01-31" or "2024-01-31T13:45:00".
automation::Date ReadDate(const JsonEntry& entry) {
  const std::string text = entry.Text();
  const auto fail = [&] {
    entry.FailExpecting("a date such as \"2024-01-31\" or \"2024-01-31T13:45:00\"");
  };
  const bool withTime = text.size() == 19 && text[10] == 'T' && text[13] == ':' && text[16] == ':';
  if (!withTime && text.size() != 10) fail();
  const int year = Digits(text, 0, 4);
  const int month = Digits(text, 5, 2);
  const int day = Digits(text, 8, 2);
  if (text[4] != '-' || text[7] != '-' || year < 1900 || month < 1 || day < 1) fail();
  automation::Date date = entry.Do([&] { return automation::DateOf(year, month, day); });
  if (!withTime) return date;
  const int hour = Digits(text, 11, 2);
  const int minute = Digits(text, 14, 2);
  const int second = Digits(text, 17, 2);
  if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) fail();
  date.serial += (hour * 3600 + minute * 60 + second) / kSecondsOfDay;
  return date;
}

Variant ReadNumber(const JsonEntry& entry) {
  const auto& value = entry.Value();
  const bool tooLarge =
      value.is_number_unsigned()
          ? value.get<std::uint64_t>() > std::uint64_t{kLargestExactInteger}
          : value.is_number_integer() && std::abs(value.get<std::int64_t>()) > kLargestExactInteger;
  if (tooLarge) entry.FailExpecting("a number that a cell can hold exactly; a text can hold it");
  return value.get<double>();
}

/// A value written plainly: null, a boolean, a number or a text.
Variant ReadPlain(const JsonEntry& entry) {
  const auto& value = entry.Value();
  if (value.is_null()) return {};
  if (value.is_boolean()) return value.get<bool>();
  if (value.is_number()) return ReadNumber(entry);
  if (value.is_string()) return entry.Text();
  entry.FailExpecting("a number, a text, true, false, null or an object that tells the kind");
}

Variant ReadError(const JsonEntry& entry) {
  const auto error = CellErrorOf(entry.Text());
  if (!error) entry.FailExpecting("a cell's error such as \"#DIV/0!\"");
  return *error;
}

/// A value of any kind but a formula.
Variant ReadValue(const JsonEntry& entry) {
  if (!entry.Value().is_object()) return ReadPlain(entry);
  if (entry.Has("date")) return ReadDate(entry.At("date"));
  if (entry.Has("error")) return ReadError(entry.At("error"));
  return ReadPlain(entry.At("value"));
}

std::string ReadFormula(const JsonEntry& entry) {
  std::string formula = entry.Text();
  if (formula.size() < 2 || !formula.starts_with('=')) {
    entry.FailExpecting("a formula that begins with \"=\"");
  }
  return formula;
}

void RequireOneKind(const JsonEntry& entry) {
  int kinds = 0;
  for (const char* key : {"value", "date", "error", "formula"}) kinds += entry.Has(key) ? 1 : 0;
  if (kinds != 1) {
    entry.Fail("expected exactly one of the keys \"value\", \"date\", \"error\", \"formula\"");
  }
}

}  // namespace

Cell ReadFileCell(const JsonEntry& entry) {
  Cell cell;
  if (!entry.Value().is_object()) {
    entry.Do([&] { Put(cell, ReadPlain(entry)); });
    return cell;
  }
  entry.RequireKeys({"value", "date", "error", "formula", "shown", "format"});
  RequireOneKind(entry);
  if (entry.Has("format")) cell.format = entry.At("format").Text();
  if (!entry.Has("formula")) {
    if (entry.Has("shown")) entry.Fail("\"shown\" is for a cell with a \"formula\"");
    entry.Do([&] { Put(cell, ReadValue(entry)); });
    return cell;
  }
  cell.formula = ReadFormula(entry.At("formula"));
  if (entry.Has("shown")) entry.Do([&] { PutShown(cell, ReadValue(entry.At("shown"))); });
  return cell;
}

}  // namespace rangewerks::hosts::workbook
