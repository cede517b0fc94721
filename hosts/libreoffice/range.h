// The late-bound Range: one rectangle of cells.
#pragma once

#include "hosts/libreoffice/cells_part.h"

namespace rangewerks::hosts::libreoffice {

/// A Range stays where it is: unlike in other programs it doesn't follow cells that move when rows
/// are inserted or deleted above them.
class Range final : public HostObject {
 public:
  /// What the elements are that Count counts and Item counts by.
  enum class Elements { Cells, Rows, Columns };

  Range(SessionPointer session, BookPointer book, SheetPointer sheet, Area area,
        Elements elements = Elements::Cells);

  const MemberTable& Members() const override;
  const BookPointer& InBook() const noexcept { return book_; }
  const SheetPointer& OnSheet() const noexcept { return sheet_; }
  const Area& Cells() const noexcept { return area_; }

  Variant GetValue() const;
  void LetValue(const Variant& value);
  /// All cells, or one by its place within the range.
  Variant GetCells(const Variant& row, const Variant& column) const;

 protected:
  Variant Carry(const Invocation& call) override;
  std::unique_ptr<Enumerator> Walk() override;
  void RequireAlive() const override { RequireThere(*sheet_); }

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
  void LetNumberFormat(const Variant& format);
  Variant GetHorizontalAlignment() const;
  void LetHorizontalAlignment(const Variant& alignment);
  Variant GetWrapText() const;
  void LetWrapText(bool wraps);
  Variant GetFont() const;
  Variant GetInterior() const;
  Variant GetBorders(const Variant& index) const;
  Variant GetColumnWidth() const;
  void LetColumnWidth(const Variant& characters);
  void AutoFit();
  Variant GetValidation() const;
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
  std::string Place() const;
  CellBlock Block() const;

  BookPointer book_;
  SheetPointer sheet_;
  Area area_;
  Elements elements_;
};

/// Writes a value to the cells of a Range that a call has given back: what `sheet.Cells(1, 2) = 5`
/// means to a caller that binds late.
void LetValueOf(const Variant& range, const Variant& value);
/// The call without its last positional argument, as a read.
Invocation AsRead(const Invocation& write);

}  // namespace rangewerks::hosts::libreoffice
