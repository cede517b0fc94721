#include "hosts/common/area.h"

#include <algorithm>

namespace rangewerks::hosts {
namespace {

constexpr std::int32_t kLetters = 26;

/// One side of an address; a row or a column that isn't given is 0.
struct Corner {
  std::int32_t row = 0;
  std::int32_t column = 0;
};

void PassDollar(std::string_view& text) {
  if (text.starts_with('$')) text.remove_prefix(1);
}

std::int32_t ReadColumn(std::string_view& text) {
  std::int32_t column = 0;
  while (!text.empty() && column <= kSheetColumns) {
    const char letter = static_cast<char>(text.front() & ~0x20);  // upper case, if it is a letter
    if (letter < 'A' || letter > 'Z') break;
    column = column * kLetters + (letter - 'A' + 1);
    text.remove_prefix(1);
  }
  return column;
}

std::int32_t ReadRow(std::string_view& text) {
  std::int32_t row = 0;
  if (text.starts_with('0')) return 0;
  while (!text.empty() && text.front() >= '0' && text.front() <= '9' && row <= kSheetRows) {
    row = row * 10 + (text.front() - '0');
    text.remove_prefix(1);
  }
  return row;
}

std::optional<Corner> ReadCorner(std::string_view text) {
  Corner corner;
  PassDollar(text);
  corner.column = ReadColumn(text);
  if (corner.column != 0) PassDollar(text);
  corner.row = ReadRow(text);
  const bool something = corner.row != 0 || corner.column != 0;
  if (!text.empty() || !something) return std::nullopt;
  if (corner.row > kSheetRows || corner.column > kSheetColumns) return std::nullopt;
  return corner;
}

std::string ColumnLetters(std::int32_t column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / kLetters) {
    letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % kLetters));
  }
  return letters;
}

std::string ColumnAddress(std::int32_t column) { return "$" + ColumnLetters(column); }
std::string RowAddress(std::int32_t row) { return "$" + std::to_string(row); }

}  // namespace

std::optional<Area> AreaOnSheet(std::int64_t row, std::int64_t column, std::int64_t rows,
                                std::int64_t columns) {
  if (row < 1 || column < 1 || rows < 1 || columns < 1) return std::nullopt;
  if (row + rows - 1 > kSheetRows || column + columns - 1 > kSheetColumns) return std::nullopt;
  return Area{static_cast<std::int32_t>(row), static_cast<std::int32_t>(column),
              static_cast<std::int32_t>(rows), static_cast<std::int32_t>(columns)};
}

Area BoundingArea(const Area& first, const Area& second) {
  const std::int32_t row = std::min(first.row, second.row);
  const std::int32_t column = std::min(first.column, second.column);
  return {row, column, std::max(first.LastRow(), second.LastRow()) - row + 1,
          std::max(first.LastColumn(), second.LastColumn()) - column + 1};
}

std::optional<Area> CommonArea(const Area& first, const Area& second) {
  const std::int32_t row = std::max(first.row, second.row);
  const std::int32_t column = std::max(first.column, second.column);
  return AreaOnSheet(row, column, std::min(first.LastRow(), second.LastRow()) - row + 1,
                     std::min(first.LastColumn(), second.LastColumn()) - column + 1);
}

std::vector<Area> AreaWithout(const Area& area, const Area& other) {
  const auto hole = CommonArea(area, other);
  if (!hole) return {area};
  std::vector<Area> left;
  const auto keep = [&](std::int32_t row, std::int32_t column, std::int32_t rows,
                        std::int32_t columns) {
    if (const auto part = AreaOnSheet(row, column, rows, columns)) left.push_back(*part);
  };
  keep(area.row, area.column, hole->row - area.row, area.columns);
  keep(hole->row, area.column, hole->rows, hole->column - area.column);
  keep(hole->row, hole->LastColumn() + 1, hole->rows, area.LastColumn() - hole->LastColumn());
  keep(hole->LastRow() + 1, area.column, area.LastRow() - hole->LastRow(), area.columns);
  return left;
}

std::optional<Area> ParseAddress(std::string_view text) {
  const std::size_t colon = text.find(':');
  const auto first = ReadCorner(text.substr(0, colon));
  if (!first) return std::nullopt;
  if (colon == std::string_view::npos) {
    if (first->row == 0 || first->column == 0) return std::nullopt;
    return Area{first->row, first->column};
  }
  const auto second = ReadCorner(text.substr(colon + 1));
  if (!second) return std::nullopt;
  const bool wholeColumns = first->row == 0;
  const bool wholeRows = first->column == 0;
  if (wholeColumns != (second->row == 0) || wholeRows != (second->column == 0)) return std::nullopt;
  Area one{wholeColumns ? 1 : first->row, wholeRows ? 1 : first->column};
  Area other{wholeColumns ? kSheetRows : second->row, wholeRows ? kSheetColumns : second->column};
  return BoundingArea(one, other);
}

std::string AddressOf(const Area& area) {
  if (area.rows == kSheetRows) {
    return ColumnAddress(area.column) + ":" + ColumnAddress(area.LastColumn());
  }
  if (area.columns == kSheetColumns) return RowAddress(area.row) + ":" + RowAddress(area.LastRow());
  std::string address = ColumnAddress(area.column) + RowAddress(area.row);
  if (area.IsOneCell()) return address;
  return address + ":" + ColumnAddress(area.LastColumn()) + RowAddress(area.LastRow());
}

}  // namespace rangewerks::hosts
