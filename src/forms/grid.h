// A report list over rows that belong to somebody else: the grid asks for what it shows, and keeps
// no copy.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "automation/variant.h"
#include "forms/control.h"
#include "forms/picture.h"

namespace rangewerks::forms {

/// Rows and columns, numbered from 0. Whoever changes them tells the grids that show them.
class GridRows {
 public:
  virtual ~GridRows() = default;
  virtual std::size_t RowCount() const = 0;
  virtual automation::Variant Cell(std::size_t row, std::size_t column) const = 0;
  virtual void SetCell(std::size_t row, std::size_t column, const automation::Variant& value) = 0;

  /// Told after rows or cells have changed. One listener; an empty function takes it away.
  void Listen(std::function<void()> changed) { changed_ = std::move(changed); }

 protected:
  void TellChanged() const {
    if (changed_) changed_();
  }

 private:
  std::function<void()> changed_;
};

struct GridColumn {
  std::size_t source = 0;  ///< the column of the rows that it shows
  std::string heading{};
  double width = 0;    ///< twips; 0 takes what the others leave
  bool locked = true;  ///< the person can't type in it
  /// When given, a picture stands for the value.
  std::function<Picture(const automation::Variant& value)> picture{};
};

class Grid final : public Control {
 public:
  /// The columns as designed; widths and locks can be changed later.
  Grid(Container& parent, std::string name, ControlProperties design,
       std::vector<GridColumn> columns);
  ~Grid() override;

  std::size_t ColumnCount() const { return columns_.size(); }
  const GridColumn& Column(std::size_t index) const { return columns_.at(index); }
  void let_ColumnWidth(std::size_t index, double width);
  void let_ColumnLocked(std::size_t index, bool locked);

  /// What is shown. The grid follows its changes until other rows are set or the form unloads.
  void set_Array(const std::shared_ptr<GridRows>& rows);
  /// Reads all shown rows again.
  void ReBind();

  /// The current row, -1 when there is none.
  std::int32_t get_Row() const;
  /// The value of a column of the current row. Raises 9 when there is no current row.
  automation::Variant get_ColumnValue(std::size_t index) const;

  /// The person has clicked a row. No row is the current one before the first click or key.
  std::function<void()> Click;
  /// Another row has become the current one.
  std::function<void()> RowColChange;

  // --- for the window that shows it ------------------------------------------------------------

  const GridRows* Rows() const { return rows_.get(); }
  std::int32_t CurrentRow() const { return row_; }
  /// What a cell shows as text; empty where a picture stands.
  std::string CellText(std::size_t row, std::size_t column) const;
  Picture CellPicture(std::size_t row, std::size_t column) const;
  /// By keys.
  void PersonMovedTo(std::int32_t row);
  /// The click is told before the change of row that it brings.
  void PersonClicked(std::int32_t row);
  void PersonTyped(std::size_t row, std::size_t column, const std::string& text);

 protected:
  void Reset() override;

 private:
  void Follow(const std::shared_ptr<GridRows>& rows);
  void RowsChanged();

  const std::vector<GridColumn> designColumns_;
  std::vector<GridColumn> columns_;
  std::shared_ptr<GridRows> rows_;
  std::int32_t row_ = -1;
};

}  // namespace rangewerks::forms
