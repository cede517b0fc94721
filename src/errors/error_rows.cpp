#include "errors/error_rows.h"

#include "automation/conversions.h"
#include "automation/error.h"
#include "automation/text.h"

namespace rangewerks {

using automation::Variant;

namespace {

void RequireInside(std::size_t row, std::size_t rows, std::size_t column) {
  if (row < rows && column < ErrorRows::kColumns) return;
  throw automation::Error(automation::ErrorNumber::SubscriptOutOfRange);
}

}  // namespace

Variant ErrorRows::Cell(std::size_t row, std::size_t column) const {
  RequireInside(row, rows_.size(), column);
  return rows_[row].at(column);
}

void ErrorRows::SetCell(std::size_t row, std::size_t column, const Variant& value) {
  RequireInside(row, rows_.size(), column);
  rows_[row].at(column) = value;
  TellChanged();
}

bool ErrorRows::IsEmpty() const {
  if (rows_.size() != 1) return false;
  const Variant& first = rows_.front()[kSheetRow];
  return automation::IsBlank(ToString(first, automation::Locale::Current()));
}

void ErrorRows::AppendRow() {
  rows_.emplace_back();
  TellChanged();
}

void ErrorRows::WriteLastRow(const Variant& sheetRow, bool isWarning, const Variant& description,
                             const Variant& sourceRow) {
  Row& row = rows_.back();
  row[kSheetRow] = sheetRow;
  row[kIsWarning] = isWarning;
  row[kDescription] = description;
  row[kSourceRow] = sourceRow;
  TellChanged();
}

void ErrorRows::Clear() {
  rows_.assign(1, Row());
  TellChanged();
}

}  // namespace rangewerks
