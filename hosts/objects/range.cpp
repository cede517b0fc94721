#include "hosts/objects/range.h"

#include <algorithm>
#include <array>

#include "hosts/common/format_numbers.h"
#include "hosts/common/name_rules.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::objects {
namespace {

using automation::CallKind;
using automation::Error;
using automation::ErrorNumber;
using automation::Member;

const Member kItem{"Item"};
const Member kCells{"Cells"};
const Member kRange{"Range"};

constexpr double kWidestColumn = 255;
constexpr std::array<std::int32_t, 4> kAlignments{excel::xlGeneral, excel::xlLeft, kCenter,
                                                  excel::xlRight};

bool ReadsThenWrites(const Invocation& call) {
  if (call.kind != CallKind::Let) return false;
  const bool isDefault = call.member == Member::Default();
  return call.positional.size() > 1 && (isDefault || call.member == kItem || call.member == kCells);
}

}  // namespace

const MemberTable& Range::Members() const {
  static const MemberTable table =
      MemberTable::For<Range>("Range")
          .Get(0, "Value", &Range::GetValue, "What the cells hold; a block of values for several.")
          .Let(0, "Value", &Range::LetValue, "Enters a value into every cell, or a block of them.")
          .Get(1, "Item", &Range::GetItem, {"RowIndex", Optional("ColumnIndex")},
               "One cell, by its position or by its place within the range.")
          .Get(2, "Cells", &Range::GetCells, {Optional("RowIndex"), Optional("ColumnIndex")},
               "The cells of the range, or one of them.")
          .Get(3, "Count", &Range::GetCount, "Number of cells, of rows or of columns.")
          .Get(4, "Row", &Range::GetRow, "Number of the first row.")
          .Get(5, "Column", &Range::GetColumn, "Number of the first column.")
          .Get(6, "Rows", &Range::GetRows, "The range by its rows.")
          .Get(7, "Columns", &Range::GetColumns, "The range by its columns.")
          .Get(8, "EntireRow", &Range::GetEntireRow, "The whole rows.")
          .Get(9, "Address", &Range::GetAddress, "The absolute address.")
          .Get(10, "Resize", &Range::GetResize, {Optional("RowSize"), Optional("ColumnSize")},
               "A range from the same first cell in another size.")
          .Get(11, "Offset", &Range::GetOffset, {Optional("RowOffset"), Optional("ColumnOffset")},
               "A range of the same size, moved.")
          .Get(12, "Formula", &Range::GetFormula, "The content as entered, as text.")
          .Let(12, "Formula", &Range::LetFormula, "Enters a content in English notation.")
          .Get(13, "HasFormula", &Range::GetHasFormula, "True, false, or null when mixed.")
          .Get(14, "NumberFormat", &Range::GetNumberFormat, "The format; null when mixed.")
          .Let(14, "NumberFormat", &Range::LetNumberFormat, "Sets the format of every cell.")
          .Method(15, "ClearContents", &Range::ClearContents, {}, "Clears values and formulas.")
          .Get(16, "Name", &Range::GetName, "The name that stands for exactly these cells.")
          .Let(16, "Name", &Range::LetName, "Gives the cells a name, or moves that name to them.")
          .Get(17, "Parent", &Range::GetParent, "The sheet.")
          .Get(18, "Worksheet", &Range::GetParent, "The sheet.")
          .Get(19, "Application", &Range::GetApplication, "The application.")
          .Method(20, "Select", &Range::Select, {}, "Selects the cells of the active sheet.")
          .Get(21, "EntireColumn", &Range::GetEntireColumn, "The whole columns.")
          .Get(22, "HorizontalAlignment", &Range::GetHorizontalAlignment, "Null when mixed.")
          .Let(22, "HorizontalAlignment", &Range::LetHorizontalAlignment, "Aligns every cell.")
          .Get(23, "WrapText", &Range::GetWrapText, "Whether texts wrap; null when mixed.")
          .Let(23, "WrapText", &Range::LetWrapText, "Lets the texts of every cell wrap, or not.")
          .Get(24, "ColumnWidth", &Range::GetColumnWidth, "In characters; null when mixed.")
          .Let(24, "ColumnWidth", &Range::LetColumnWidth, "Sets the width of every column.")
          .Method(25, "AutoFit", &Range::AutoFit, {}, "Makes columns as wide as what they show.")
          .Get(26, "Font", &Range::GetFont, "The font of the cells.")
          .Get(27, "Interior", &Range::GetInterior, "The fill of the cells.")
          .Get(28, "Borders", &Range::GetBorders, {Optional("Index")},
               "The lines around and between the cells, or one of them.")
          .Get(29, "Validation", &Range::GetValidation, "The rule of what may be entered.")
          .Get(30, "FormatConditions", &Range::GetFormatConditions, {Optional("Index")},
               "The conditional formats of the cells, or one of them.");
  return table;
}

Variant Range::Carry(const Invocation& call) {
  if (ReadsThenWrites(call)) {
    LetValueOf(Carry(AsRead(call)), call.positional.back().Value());
    return {};
  }
  const bool isIndexed = !call.positional.empty() || !call.named.empty();
  if (call.member == Member::Default() && call.kind != CallKind::Let && isIndexed) {
    return Members().Invoke(*this, {kItem, call.kind, call.positional, call.named});
  }
  return HostObject::Carry(call);
}

// --- parts of the range --------------------------------------------------------------------------

std::shared_ptr<Range> Range::Placed(std::int64_t rowOffset, std::int64_t columnOffset,
                                     std::int64_t rows, std::int64_t columns,
                                     Elements elements) const {
  const auto area = AreaOnSheet(area_.row + rowOffset, area_.column + columnOffset, rows, columns);
  if (!area) {
    Refuse(std::to_string(rows) + " by " + std::to_string(columns) + " cells, " +
           std::to_string(rowOffset) + " rows and " + std::to_string(columnOffset) +
           " columns from " + Place() + ", aren't on the sheet");
  }
  return Make(*area, elements);
}

std::shared_ptr<Range> Range::CellAt(std::int64_t row, std::int64_t column) const {
  return Placed(row - 1, column - 1, 1, 1);
}

std::shared_ptr<Range> Range::Element(std::int64_t index) const {
  switch (elements_) {
    case Elements::Rows:
      return Placed(index - 1, 0, 1, area_.columns, Elements::Rows);
    case Elements::Columns:
      return Placed(0, index - 1, area_.rows, 1, Elements::Columns);
    case Elements::Cells:
      break;
  }
  const std::int64_t columns = area_.columns;
  std::int64_t row = (index - 1) / columns;
  std::int64_t column = (index - 1) % columns;
  if (column < 0) {  // positions below 1 count backwards
    column += columns;
    --row;
  }
  return Placed(row, column, 1, 1);
}

Variant Range::GetItem(const Variant& row, const Variant& column) const {
  if (column.IsMissing()) return Element(LongArgument(row));
  return CellAt(LongArgument(row), LongArgument(column));
}

Variant Range::GetCells(const Variant& row, const Variant& column) const {
  const auto cells = Placed(0, 0, area_.rows, area_.columns);
  if (row.IsMissing() && column.IsMissing()) return cells;
  if (row.IsMissing()) return cells->CellAt(1, LongArgument(column));
  return cells->GetItem(row, column);
}

Variant Range::GetCount() const {
  if (elements_ == Elements::Rows) return area_.rows;
  if (elements_ == Elements::Columns) return area_.columns;
  if (area_.Count() > INT32_MAX) throw Error(ErrorNumber::Overflow);
  return static_cast<std::int32_t>(area_.Count());
}

Variant Range::GetRow() const { return area_.row; }
Variant Range::GetColumn() const { return area_.column; }
Variant Range::GetRows() const { return Placed(0, 0, area_.rows, area_.columns, Elements::Rows); }
Variant Range::GetColumns() const {
  return Placed(0, 0, area_.rows, area_.columns, Elements::Columns);
}
Variant Range::GetEntireRow() const {
  return Placed(0, 1 - area_.column, area_.rows, kSheetColumns, Elements::Rows);
}
Variant Range::GetEntireColumn() const {
  return Placed(1 - area_.row, 0, kSheetRows, area_.columns, Elements::Columns);
}
Variant Range::GetAddress() const { return AddressOf(area_); }

Variant Range::GetResize(const Variant& rows, const Variant& columns) const {
  return Placed(0, 0, rows.IsMissing() ? area_.rows : LongArgument(rows),
                columns.IsMissing() ? area_.columns : LongArgument(columns));
}

Variant Range::GetOffset(const Variant& rows, const Variant& columns) const {
  return Placed(rows.IsMissing() ? 0 : LongArgument(rows),
                columns.IsMissing() ? 0 : LongArgument(columns), area_.rows, area_.columns);
}

/// Walks the elements without holding them all: a range can be a whole sheet.
class RangeWalk final : public Enumerator {
 public:
  explicit RangeWalk(std::shared_ptr<const Range> range) : range_(std::move(range)) {
    count_ = range_->area_.Count();
    if (range_->elements_ == Range::Elements::Rows) count_ = range_->area_.rows;
    if (range_->elements_ == Range::Elements::Columns) count_ = range_->area_.columns;
  }
  bool Next(Variant& element) override {
    if (passed_ == count_) return false;
    element = range_->Element(++passed_);
    return true;
  }

 private:
  std::shared_ptr<const Range> range_;
  std::int64_t count_;
  std::int64_t passed_ = 0;
};

std::unique_ptr<Enumerator> Range::Walk() {
  return std::make_unique<RangeWalk>(std::static_pointer_cast<Range>(shared_from_this()));
}

// --- what the host is asked for only when it can be ----------------------------------------------

void Range::LetHorizontalAlignment(std::int32_t alignment) {
  if (std::ranges::find(kAlignments, alignment) == kAlignments.end()) {
    Refuse(
        "HorizontalAlignment is 1 (general), -4131 (left), -4108 (center) or -4152 (right), not " +
        std::to_string(alignment));
  }
  PutHorizontalAlignment(alignment);
}

void Range::LetColumnWidth(double characters) {
  if (!(characters >= 0 && characters <= kWidestColumn)) {
    Refuse("A column's width is 0 to 255 characters, not " + automation::ToString(characters, {}));
  }
  PutColumnWidth(characters);
}

void Range::AutoFit() {
  if (area_.rows != kSheetRows) {
    Refuse("Only whole columns can be made as wide as what they show, not " + Place());
  }
  FitColumns();
}

Variant Range::GetBorders(const Variant& index) const {
  const auto borders = Lines();
  return index.IsMissing() ? Variant(borders) : borders->GetItem(LongArgument(index));
}

Variant Range::GetFormatConditions(const Variant& index) const {
  const auto conditions = Conditions();
  return index.IsMissing() ? Variant(conditions) : conditions->GetItem(LongArgument(index));
}

Variant Range::GetName() const {
  auto name = FindName();
  if (!name) Refuse("No name stands for " + Place());
  return name;
}

void Range::Select() {
  if (!IsInFront()) Refuse(Place() + " can't be selected: its sheet isn't the active one");
  MakeSelection();
}

std::string Range::Place() const { return PlaceOf(SheetName(), area_); }

// --- late-bound writes through a read ------------------------------------------------------------

bool WritesToCells(const Invocation& call) {
  return call.kind == CallKind::Let && call.positional.size() > 1 &&
         (call.member == kRange || call.member == kCells);
}

void LetValueOf(const Variant& range, const Variant& value) {
  range.AsObject().As<Range>()->LetValue(value);
}

Invocation AsRead(const Invocation& write) {
  return {write.member, CallKind::Get, write.positional.first(write.positional.size() - 1),
          write.named};
}

}  // namespace rangewerks::hosts::objects
