#include "hosts/workbook/grid.h"

#include <algorithm>
#include <iterator>

namespace rangewerks::hosts::workbook {

Cell Grid::At(Position position) const {
  Cell cell;
  cell.format = formats_.At(position).number;
  const auto found = contents_.find(KeyOf(position));
  if (found != contents_.end()) static_cast<Content&>(cell) = found->second;
  return cell;
}

void Grid::Store(Position position, Cell cell) {
  if (cell.format != formats_.At(position).number) {
    formats_.Change({position.row, position.column},
                    [&cell](CellFormat& format) { format.number = cell.format; });
  }
  if (cell.IsEmpty()) {
    contents_.erase(KeyOf(position));
  } else {
    contents_.insert_or_assign(KeyOf(position), static_cast<Content&&>(cell));
  }
}

std::vector<Position> Grid::InOrder() const {
  std::vector<Position> places;
  places.reserve(contents_.size());
  for (const auto& [key, content] : contents_) places.push_back(PositionOf(key));
  std::ranges::sort(places, {}, KeyOf);
  return places;
}

void Grid::ClearContents(const Area& area) {
  if (area.Count() > static_cast<std::int64_t>(contents_.size())) {
    std::erase_if(contents_,
                  [&](const auto& entry) { return area.Contains(PositionOf(entry.first)); });
    return;
  }
  for (std::int32_t row = area.row; row <= area.LastRow(); ++row) {
    for (std::int32_t column = area.column; column <= area.LastColumn(); ++column) {
      contents_.erase(KeyOf({row, column}));
    }
  }
}

}  // namespace rangewerks::hosts::workbook
