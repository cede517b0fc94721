// Where cells are: rectangles on a sheet, and their addresses such as "$C$3:$C$10".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rangewerks::hosts {

inline constexpr std::int32_t kSheetRows = 1048576;
inline constexpr std::int32_t kSheetColumns = 16384;

/// One cell's place; rows and columns count from 1.
struct Position {
  std::int32_t row;
  std::int32_t column;
  friend bool operator==(const Position&, const Position&) = default;
};

/// A rectangle of cells that lies on the sheet.
struct Area {
  std::int32_t row;
  std::int32_t column;
  std::int32_t rows = 1;
  std::int32_t columns = 1;

  std::int32_t LastRow() const { return row + rows - 1; }
  std::int32_t LastColumn() const { return column + columns - 1; }
  std::int64_t Count() const { return std::int64_t{rows} * columns; }
  bool IsOneCell() const { return rows == 1 && columns == 1; }
  bool Contains(Position cell) const {
    return cell.row >= row && cell.row <= LastRow() && cell.column >= column &&
           cell.column <= LastColumn();
  }
  friend bool operator==(const Area&, const Area&) = default;
};

/// The area of that place and size, or none when it leaves the sheet or is empty.
std::optional<Area> AreaOnSheet(std::int64_t row, std::int64_t column, std::int64_t rows,
                                std::int64_t columns);

/// The smallest area that holds both.
Area BoundingArea(const Area& first, const Area& second);
/// What both have, if anything.
std::optional<Area> CommonArea(const Area& first, const Area& second);
/// What is left of an area without the cells of another: up to four areas.
std::vector<Area> AreaWithout(const Area& area, const Area& other);

/// Reads "C3", "$C$3", "c3:d10", "A:C" or "3:5", each part with or without "$". None for anything
/// else, and for cells outside the sheet.
std::optional<Area> ParseAddress(std::string_view text);

/// The absolute address: "$C$3", "$C$3:$C$10", "$A:$C" for whole columns, "$3:$5" for whole rows.
std::string AddressOf(const Area& area);

}  // namespace rangewerks::hosts
