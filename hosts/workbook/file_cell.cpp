#include "hosts/workbook/file_cell.h"

#include <cstdint>
#include <string_view>

#include "automation/conversions.h"
#include "hosts/common/cell_errors.h"

namespace rangewerks::hosts::workbook {
namespace {

constexpr std::int64_t kLargestExactInteger = std::int64_t{1} << 53;
constexpr double kSecondsOfDay = 86400;

/// The digits at a place of a text, which are all digits, as a number.
int Digits(std::string_view text, std::size_t from, std::size_t count) {
  int number = 0;
  for (const char digit : text.substr(from, count)) number = number * 10 + (digit - '0');
  return number;
}

/// The day of "2024-01-31"; the text's form has been looked at.
automation::Date ReadDay(const JsonEntry& entry, const std::string& text) {
  try {
    return automation::DateOf(Digits(text, 0, 4), Digits(text, 5, 2), Digits(text, 8, 2));
  } catch (const automation::Error&) {
    entry.FailExpecting("a day of the calendar");
  }
}

/// Whether a text has that form: "0" stands for any digit, all else for itself.
bool HasForm(std::string_view text, std::string_view form) {
  if (text.size() != form.size()) return false;
  for (std::size_t i = 0; i < form.size(); ++i) {
    const bool isDigit = text[i] >= '0' && text[i] <= '9';
    if (form[i] == '0' ? !isDigit : text[i] != form[i]) return false;
  }
  return true;
}

bool IsExact(const JsonEntry::Json& number) {
  if (number.is_number_unsigned()) {
    return number.get<std::uint64_t>() <= std::uint64_t{kLargestExactInteger};
  }
  if (!number.is_number_integer()) return true;
  const auto integer = number.get<std::int64_t>();
  return integer >= -kLargestExactInteger && integer <= kLargestExactInteger;
}

Variant ReadNumber(const JsonEntry& entry) {
  if (!IsExact(entry.Value())) {
    entry.FailExpecting("a number that a cell can hold exactly; a text can hold it");
  }
  return entry.Value().get<double>();
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
  if (entry.Has("date")) return ReadFileDate(entry.At("date"));
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
    entry.Fail(R"(expected exactly one of the keys "value", "date", "error", "formula")");
  }
}

}  // namespace

automation::Date ReadFileDate(const JsonEntry& entry) {
  const std::string text = entry.Text();
  if (HasForm(text, "0000-00-00")) return ReadDay(entry, text);
  if (HasForm(text, "0000-00-00T00:00:00")) {
    const int hour = Digits(text, 11, 2);
    const int minute = Digits(text, 14, 2);
    const int second = Digits(text, 17, 2);
    if (hour < 24 && minute < 60 && second < 60) {
      return {ReadDay(entry, text).serial + (hour * 3600 + minute * 60 + second) / kSecondsOfDay};
    }
  }
  entry.FailExpecting(R"(a date such as "2024-01-31" or "2024-01-31T13:45:00")");
}

void ReadFileCell(const JsonEntry& entry, Cell& cell) {
  if (entry.Value().is_object()) {
    entry.RequireKeys({"value", "date", "error", "formula", "shown", "format"});
    RequireOneKind(entry);
    if (entry.Has("format")) cell.format = entry.At("format").Text();
  }
  if (entry.Has("formula")) {
    cell.formula = ReadFormula(entry.At("formula"));
    if (!entry.Has("shown")) return;
    const Variant shown = ReadValue(entry.At("shown"));
    entry.Do([&] { PutShown(cell, shown); });
    return;
  }
  if (entry.Has("shown")) entry.Fail(R"("shown" is for a cell with a "formula")");
  const Variant value = ReadValue(entry);
  entry.Do([&] { Put(cell, value); });
}

}  // namespace rangewerks::hosts::workbook
