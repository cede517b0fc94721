// The cells of one sheet. Only those that hold something take memory.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

#include "hosts/common/area.h"
#include "hosts/workbook/cell.h"

namespace rangewerks::hosts::workbook {

class Grid {
 public:
  /// The cell, or an untouched one.
  const Cell& At(Position position) const;
  /// The cell to be changed through `change(Cell&)`. What is untouched afterwards is forgotten.
  template <class Change>
  void Update(Position position, Change change) {
    const auto [entry, added] = cells_.try_emplace(KeyOf(position));
    try {
      change(entry->second);
    } catch (...) {
      if (entry->second.IsUntouched()) cells_.erase(entry);
      throw;
    }
    if (entry->second.IsUntouched()) cells_.erase(entry);
  }
  /// Calls `visit(const Cell&)` for every cell of the area that isn't untouched, in any order:
  /// takes no longer than the fewer of the area's cells and the sheet's.
  template <class Visit>
  void VisitStored(const Area& area, Visit visit) const {
    if (area.Count() <= static_cast<std::int64_t>(cells_.size())) {
      for (std::int32_t row = area.row; row <= area.LastRow(); ++row) {
        for (std::int32_t column = area.column; column <= area.LastColumn(); ++column) {
          const auto found = cells_.find(KeyOf({row, column}));
          if (found != cells_.end()) visit(found->second);
        }
      }
      return;
    }
    for (const auto& [key, cell] : cells_) {
      if (area.Contains(PositionOf(key))) visit(cell);
    }
  }
  /// All cells that aren't untouched, row by row. The pointers hold until a cell changes.
  std::vector<std::pair<Position, const Cell*>> InOrder() const;
  /// Removes values and formulas and leaves formats.
  void ClearContents(const Area& area);
  /// The area's number format; null when its cells differ.
  Variant FormatOf(const Area& area) const;

 private:
  using Key = std::uint64_t;
  static Key KeyOf(Position position) {
    return (Key{static_cast<std::uint32_t>(position.row)} << 32U) |
           static_cast<std::uint32_t>(position.column);
  }
  static Position PositionOf(Key key) {
    return {static_cast<std::int32_t>(key >> 32U), static_cast<std::int32_t>(key & 0xFFFFFFFFU)};
  }

  std::unordered_map<Key, Cell> cells_;
};

}  // namespace rangewerks::hosts::workbook
