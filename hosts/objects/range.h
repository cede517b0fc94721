// The late-bound Range: one rectangle of cells of a sheet.
#pragma once

#include "hosts/common/area.h"
#include "hosts/objects/format_conditions.h"
#include "hosts/objects/formats.h"

namespace rangewerks::hosts::objects {

/// Stays where it is: it doesn't follow cells that move when rows are inserted or deleted.
class Range : public HostObject {
 public:
  /// What the elements are that Count counts and Item counts by.
  enum class Elements { Cells, Rows, Columns };

  const MemberTable& Members() const final;
  const Area& Cells() const noexcept { return area_; }

  virtual Variant GetValue() const = 0;
  virtual void LetValue(const Variant& value) = 0;
  /// What tells the sheet from all others.
  virtual const void* Sheet() const noexcept = 0;
  virtual std::string SheetName() const = 0;
  /// Other cells of the sheet.
  virtual std::shared_ptr<Range> Make(const Area& area, Elements elements) const = 0;
  /// All cells, or one by its place within the range.
  Variant GetCells(const Variant& row, const Variant& column) const;

 protected:
  Range(Area area, Elements elements) : area_(area), elements_(elements) {}

  Variant Carry(const Invocation& call) final;
  std::unique_ptr<Enumerator> Walk() final;

  /// The cells with their sheet, for messages: "'Data Sheet'!$C$3".
  std::string Place() const;

  virtual Variant GetFormula() const = 0;
  virtual void LetFormula(const Variant& value) = 0;
  virtual Variant GetHasFormula() const = 0;
  virtual void ClearContents() = 0;

  virtual Variant GetNumberFormat() const = 0;
  virtual void LetNumberFormat(const std::string& format) = 0;
  virtual Variant GetHorizontalAlignment() const = 0;
  /// `alignment` is general, left, center or right.
  virtual void PutHorizontalAlignment(std::int32_t alignment) = 0;
  virtual Variant GetWrapText() const = 0;
  virtual void LetWrapText(bool wraps) = 0;
  virtual Variant GetColumnWidth() const = 0;
  /// 0 to 255.
  virtual void PutColumnWidth(double characters) = 0;
  /// The range is of whole columns.
  virtual void FitColumns() = 0;
  virtual Variant GetFont() const = 0;
  virtual Variant GetInterior() const = 0;
  virtual std::shared_ptr<Borders> Lines() const = 0;
  virtual Variant GetValidation() const = 0;
  virtual std::shared_ptr<FormatConditions> Conditions() const = 0;

  /// A Name that stands for exactly these cells, or null.
  virtual std::shared_ptr<HostObject> FindName() const = 0;
  virtual void LetName(const Variant& name) = 0;
  virtual Variant GetParent() const = 0;
  virtual Variant GetApplication() const = 0;
  /// Whether the sheet is the active one of the active workbook.
  virtual bool IsInFront() const = 0;
  virtual void MakeSelection() = 0;

  Area area_;

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
  void LetHorizontalAlignment(std::int32_t alignment);
  void LetColumnWidth(double characters);
  void AutoFit();
  /// All lines around and between the cells, or one of them.
  Variant GetBorders(const Variant& index) const;
  /// All conditional formats of the cells, or one of them.
  Variant GetFormatConditions(const Variant& index) const;
  Variant GetName() const;
  void Select();

  std::shared_ptr<Range> Element(std::int64_t index) const;
  std::shared_ptr<Range> CellAt(std::int64_t row, std::int64_t column) const;
  /// The area that far from this one and of that size. Raises 1004 when it leaves the sheet.
  std::shared_ptr<Range> Placed(std::int64_t rowOffset, std::int64_t columnOffset,
                                std::int64_t rows, std::int64_t columns,
                                Elements elements = Elements::Cells) const;

  Elements elements_;
};

/// Whether a call writes to the cells that Range or Cells gives: `sheet.Cells(1, 2) = 5`.
bool WritesToCells(const Invocation& call);
/// Writes a value to the cells of a Range that a call has given back: what `sheet.Cells(1, 2) = 5`
/// means to a caller that binds late.
void LetValueOf(const Variant& range, const Variant& value);
/// The call without its last positional argument, as a read.
Invocation AsRead(const Invocation& write);

}  // namespace rangewerks::hosts::objects
