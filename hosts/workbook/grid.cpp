#include "hosts/workbook/grid.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace rangewerks::hosts::workbook {

const Cell& Grid::At(Position position) const {
  static const Cell untouched;
  const auto found = cells_.find(KeyOf(position));
  return found == cells_.end() ? untouched : found->second;
}

std::vector<std::pair<Position, const Cell*>> Grid::InOrder() const {
  std::vector<std::pair<Position, const Cell*>> cells;
  cells.reserve(cells_.size());
  for (const auto& [key, cell] : cells_) cells.emplace_back(PositionOf(key), &cell);
  std::ranges::sort(cells, {}, [](const auto& entry) { return KeyOf(entry.first); });
  return cells;
}

void Grid::ClearContents(const Area& area) {
  const auto clear = [](Cell& cell) {
    cell.value = {};
    cell.formula.clear();
  };
  if (area.Count() > static_cast<std::int64_t>(cells_.size())) {
    for (auto entry = cells_.begin(); entry != cells_.end();) {
      auto& [key, cell] = *entry;
      if (area.Contains(PositionOf(key))) clear(cell);
      entry = cell.IsUntouched() ? cells_.erase(entry) : std::next(entry);
    }
    return;
  }
  for (std::int32_t row = area.row; row <= area.LastRow(); ++row) {
    for (std::int32_t column = area.column; column <= area.LastColumn(); ++column) {
      Update({row, column}, clear);
    }
  }
}

Variant Grid::FormatOf(const Area& area) const {
  std::string format = At({area.row, area.column}).format;
  std::int64_t stored = 0;
  bool same = true;
  VisitStored(area, [&](const Cell& cell) {
    ++stored;
    same = same && cell.format == format;
  });
  const bool othersAreGeneral = stored < area.Count();
  if (!same || (othersAreGeneral && !format.empty())) return automation::Null();
  return format.empty() ? Variant(kGeneralFormat) : Variant(std::move(format));
}

}  // namespace rangewerks::hosts::workbook
