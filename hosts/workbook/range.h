// The late-bound Range: one rectangle of cells.
#pragma once

#include "hosts/workbook/cells_object.h"

namespace rangewerks::hosts::workbook {

class Range final : public CellsObject {
 public:
  /// What the elements are that Count counts and Item counts by.
  enum class Elements { Cells, Rows, Columns };

  Range(SessionPointer session, SheetPointer sheet, Area area, Elements elements = Elements::Cells);
  static std::shared_ptr<Range> Of(SessionPointer session, const Reference& reference);

  const MemberTable& Members() const override;

  Variant GetValue() const;
  void LetValue(const Variant& value);
  /// All cells, or one by its place within the range.
  Variant GetCells(const Variant& row, const Variant& column) const;

 protected:
  Variant Carry(const Invocation& call) override;
  std::unique_ptr<Enumerator> Walk() override;

 private:
  friend class RangeWalk;

  Variant GetItem(const Variant& row, const Variant& column) const;
  Variant GetCount() const;
  Variant GetRow() const;
  Variant GetColumn() const;
  Variant GetRows() const;
  Variant GetColumns() const;
  Variant GetEntireRow() const;
  Variant GetEntireColumn() const;
  Variant GetAddress() const;
  Variant GetResize(const Variant& rows, const Variant& columns) const;
  Variant GetOffset(const Variant& rows, const Variant& columns) const;

  Variant GetFormula() const;
  void LetFormula(const Variant& value);
  Variant GetHasFormula() const;
  void ClearContents();

  Variant GetNumberFormat() const;
  void LetNumberFormat(const std::string& format);
  Variant GetHorizontalAlignment() const;
  void LetHorizontalAlignment(std::int32_t alignment);
  Variant GetWrapText() const;
  void LetWrapText(bool wraps);
  Variant GetColumnWidth() const;
  void LetColumnWidth(double width);
  void AutoFit();
  Variant GetFont() const;
  Variant GetInterior() const;
  /// All lines around and between the cells, or one of them.
  Variant GetBorders(const Variant& index) const;
  Variant GetValidation() const;
  /// All conditional formats of the cells, or one of them.
  Variant GetFormatConditions(const Variant& index) const;

  Variant GetName() const;
  void LetName(const Variant& name);
  Variant GetParent() const;
  Variant GetApplication() const;
  void Select();

  std::shared_ptr<Range> Element(std::int64_t index) const;
  std::shared_ptr<Range> CellAt(std::int64_t row, std::int64_t column) const;
  /// The area that far from this one and of that size. Raises 1004 when it leaves the sheet.
  std::shared_ptr<Range> Placed(std::int64_t rowOffset, std::int64_t columnOffset,
                                std::int64_t rows, std::int64_t columns,
                                Elements elements = Elements::Cells) const;
  template <class Read>
  Variant ReadCells(Read read) const;
  template <class Write>
  void WriteCells(const Variant& value, Write write);

  Elements elements_;
};

/// Whether a call writes to the cells that Range or Cells gives: `sheet.Cells(1, 2) = 5`.
bool WritesToCells(const Invocation& call);
/// Writes a value to the cells of a Range that a call has given back: what `sheet.Cells(1, 2) = 5`
/// means to a caller that binds late.
void LetValueOf(const Variant& range, const Variant& value);
/// The call without its last positional argument, as a read.
Invocation AsRead(const Invocation& write);

}  // namespace rangewerks::hosts::workbook
