#include "forms/grid.h"

#include "automation/conversions.h"
#include "automation/error.h"
#include "forms/form.h"

namespace rangewerks::forms {

Grid::Grid(Container& parent, std::string name, ControlProperties design,
           std::vector<GridColumn> columns)
    : Control(parent, ControlKind::Grid, std::move(name), std::move(design)),
      designColumns_(std::move(columns)),
      columns_(designColumns_) {}

Grid::~Grid() {
  OwningForm().DropWindow();
  Follow(nullptr);
}

void Grid::let_ColumnWidth(std::size_t index, double width) {
  OwningForm().Load();
  columns_.at(index).width = width;
  Changed(Aspect::Content);
}

void Grid::let_ColumnLocked(std::size_t index, bool locked) {
  OwningForm().Load();
  columns_.at(index).locked = locked;
}

void Grid::Follow(const std::shared_ptr<GridRows>& rows) {
  if (rows_) rows_->Listen({});
  rows_ = rows;
  if (rows_) rows_->Listen([this] { RowsChanged(); });
}

void Grid::set_Array(const std::shared_ptr<GridRows>& rows) {
  OwningForm().Load();
  Follow(rows);
  RowsChanged();
}

void Grid::ReBind() {
  OwningForm().Load();
  RowsChanged();
}

void Grid::RowsChanged() {
  const auto count = rows_ ? static_cast<std::int32_t>(rows_->RowCount()) : 0;
  if (row_ >= count) row_ = -1;
  Changed(Aspect::Content);
}

std::int32_t Grid::get_Row() const {
  OwningForm().Load();
  return row_;
}

automation::Variant Grid::get_ColumnValue(std::size_t index) const {
  OwningForm().Load();
  if (!rows_ || row_ < 0) throw automation::Error(automation::ErrorNumber::SubscriptOutOfRange);
  return rows_->Cell(static_cast<std::size_t>(row_), columns_.at(index).source);
}

std::string Grid::CellText(std::size_t row, std::size_t column) const {
  const GridColumn& shown = columns_.at(column);
  if (!rows_ || shown.picture) return {};
  const automation::Variant value = rows_->Cell(row, shown.source);
  if (value.IsEmpty()) return {};
  return automation::ToString(value, automation::Locale::Current());
}

Picture Grid::CellPicture(std::size_t row, std::size_t column) const {
  const GridColumn& shown = columns_.at(column);
  if (!rows_ || !shown.picture) return Picture::None;
  return shown.picture(rows_->Cell(row, shown.source));
}

void Grid::PersonMovedTo(std::int32_t row) {
  if (row == row_) return;
  row_ = row;
  OwningForm().Handle([&] {
    if (RowColChange) RowColChange();
  });
}

void Grid::PersonClicked(std::int32_t row) {
  const std::shared_ptr<Form> keep = OwningForm().weak_from_this().lock();
  OwningForm().Handle([&] {
    if (Click) Click();
  });
  if (OwningForm().IsLoaded()) PersonMovedTo(row);
}

void Grid::PersonTyped(std::size_t row, std::size_t column, const std::string& text) {
  OwningForm().Handle([&] {
    const GridColumn& typedIn = columns_.at(column);
    if (rows_ && !typedIn.locked) rows_->SetCell(row, typedIn.source, automation::Variant(text));
  });
}

void Grid::Reset() {
  Control::Reset();
  Follow(nullptr);
  row_ = -1;
  columns_ = designColumns_;
}

}  // namespace rangewerks::forms
