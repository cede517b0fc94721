// The cells of one sheet: what they hold and how they look. Only those that hold something take
// memory.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

#include "hosts/common/area.h"
#include "hosts/workbook/area_values.h"
#include "hosts/workbook/cell.h"

namespace rangewerks::hosts::workbook {

class Grid {
 public:
  Cell At(Position position) const;
  /// Changes a cell through `change(Cell&)`.
  template <class Change>
  void Update(Position position, Change change) {
    Cell cell = At(position);
    change(cell);
    Store(position, std::move(cell));
  }
  /// Calls `visit(Position, const Content&)` for every cell of the area that isn't empty, in any
  /// order: takes no longer than the fewer of the area's cells and the sheet's.
  template <class Visit>
  void VisitStored(const Area& area, Visit visit) const {
    if (area.Count() <= static_cast<std::int64_t>(contents_.size())) {
      for (std::int32_t row = area.row; row <= area.LastRow(); ++row) {
        for (std::int32_t column = area.column; column <= area.LastColumn(); ++column) {
          const auto found = contents_.find(KeyOf({row, column}));
          if (found != contents_.end()) visit(Position{row, column}, found->second);
        }
      }
      return;
    }
    for (const auto& [key, content] : contents_) {
      if (area.Contains(PositionOf(key))) visit(PositionOf(key), content);
    }
  }
  /// The places of all cells that aren't empty, row by row.
  std::vector<Position> InOrder() const;
  /// Removes values and formulas and leaves formats.
  void ClearContents(const Area& area);

  const AreaValues<CellFormat>& Formats() const noexcept { return formats_; }
  AreaValues<CellFormat>& Formats() noexcept { return formats_; }

 private:
  using Key = std::uint64_t;
  static Key KeyOf(Position position) {
    return (Key{static_cast<std::uint32_t>(position.row)} << 32U) |
           static_cast<std::uint32_t>(position.column);
  }
  static Position PositionOf(Key key) {
    return {static_cast<std::int32_t>(key >> 32U), static_cast<std::int32_t>(key & 0xFFFFFFFFU)};
  }
  void Store(Position position, Cell cell);

  std::unordered_map<Key, Content> contents_;
  AreaValues<CellFormat> formats_;
};

}  // namespace rangewerks::hosts::workbook
