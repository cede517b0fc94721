// What the cells of a Range hold: values and formulas.
#include "hosts/workbook/failure.h"
#include "hosts/workbook/range.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::Array;
using automation::ErrorValue;
using automation::Locale;

/// Blocks beyond this many cells are refused as a real spreadsheet runs out of memory.
constexpr std::int64_t kLargestBlock = std::int64_t{1} << 24;

void RequireMemoryFor(const Area& area) {
  if (area.Count() > kLargestBlock) {
    throw automation::Error(static_cast<std::int32_t>(automation::ErrorNumber::OutOfMemory),
                            kSource, AddressOf(area) + " has too many cells to be held at once");
  }
}

/// The element of a block for a place in a range that may be larger: one row or column repeats,
/// beyond the block "not available" stands.
Variant ElementFor(const Array& block, std::int32_t row, std::int32_t column) {
  if (block.Rows() == 1) row = 1;
  if (block.Columns() == 1) column = 1;
  if (row > block.Rows() || column > block.Columns()) {
    return ErrorValue::FromNumber(excel::xlErrNA);
  }
  return block.At(row, column);
}

/// An object stands for the value of its default member.
Variant PlainValue(const Variant& value) {
  if (!value.IsObject()) return value;
  if (const auto range = value.AsObject().As<Range>()) return range->GetValue();
  return PlainValue(value.AsObject().Get(automation::Member::Default()));
}

}  // namespace

template <class Read>
Variant Range::ReadCells(Read read) const {
  if (area_.IsOneCell()) return read(sheet_->grid.At({area_.row, area_.column}));
  RequireMemoryFor(area_);
  Array block(area_.rows, area_.columns);
  for (std::int32_t row = 1; row <= area_.rows; ++row) {
    for (std::int32_t column = 1; column <= area_.columns; ++column) {
      block.At(row, column) =
          read(sheet_->grid.At({area_.row + row - 1, area_.column + column - 1}));
    }
  }
  return block;
}

template <class Write>
void Range::WriteCells(const Variant& value, Write write) {
  RequireMemoryFor(area_);
  const Variant plain = PlainValue(value);
  for (std::int32_t row = 1; row <= area_.rows; ++row) {
    for (std::int32_t column = 1; column <= area_.columns; ++column) {
      const Position position{area_.row + row - 1, area_.column + column - 1};
      sheet_->grid.Update(position, [&](Cell& cell) {
        write(cell, plain.IsArray() ? ElementFor(plain.AsArray(), row, column) : plain);
      });
    }
  }
}

Variant Range::GetValue() const { return ReadCells(ShownValue); }

void Range::LetValue(const Variant& value) {
  const Locale& locale = Shared()->international.CurrentLocale();
  WriteCells(value, [&](Cell& cell, const Variant& each) { Enter(cell, each, locale); });
}

Variant Range::GetFormula() const {
  return ReadCells([](const Cell& cell) -> Variant { return EntryText(cell); });
}

void Range::LetFormula(const Variant& value) {
  const Locale english;
  WriteCells(value, [&](Cell& cell, const Variant& each) { Enter(cell, each, english); });
}

Variant Range::GetHasFormula() const {
  std::int64_t formulas = 0;
  sheet_->grid.VisitStored(area_, [&](Position /*place*/, const Content& content) {
    formulas += content.IsFormula() ? 1 : 0;
  });
  if (formulas == 0) return false;
  return formulas == area_.Count() ? Variant(true) : Variant(automation::Null());
}

void Range::ClearContents() { sheet_->grid.ClearContents(area_); }

}  // namespace rangewerks::hosts::workbook
