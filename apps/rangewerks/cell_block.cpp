#include "apps/rangewerks/cell_block.h"

#include <algorithm>

namespace rangewerks::apps {

namespace {

struct Cell {
  std::int32_t column = 0;
  std::int32_t row = 0;
};

void SkipDollar(std::string_view& text) {
  if (text.starts_with('$')) text.remove_prefix(1);
}

/// Takes the letters of a column from the front; 0 when there are none, or too many.
std::int32_t TakeColumn(std::string_view& text) {
  std::int32_t column = 0;
  for (; !text.empty() && column <= kMostColumns; text.remove_prefix(1)) {
    const int letter = text.front() | 0x20;  // the small letter of a capital
    if (letter < 'a' || letter > 'z') break;
    column = column * 26 + (letter - 'a' + 1);
  }
  return column <= kMostColumns ? column : 0;
}

std::int32_t TakeRow(std::string_view& text) {
  std::int32_t row = 0;
  for (; !text.empty() && row <= kMostRows; text.remove_prefix(1)) {
    const char digit = text.front();
    if (digit < '0' || digit > '9') break;
    row = row * 10 + (digit - '0');
  }
  return row <= kMostRows ? row : 0;
}

std::optional<Cell> TakeCell(std::string_view& text) {
  Cell cell;
  SkipDollar(text);
  cell.column = TakeColumn(text);
  SkipDollar(text);
  cell.row = TakeRow(text);
  if (cell.column == 0 || cell.row == 0) return std::nullopt;
  return cell;
}

std::string ShownCell(std::int32_t column, std::int32_t row) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26) {
    letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
  }
  return letters + std::to_string(row);
}

bool Meet(std::int32_t first, std::int32_t firstSize, std::int32_t second,
          std::int32_t secondSize) {
  return first < second + secondSize && second < first + firstSize;
}

}  // namespace

std::optional<CellBlock> ReadAddress(std::string_view text) {
  const std::optional<Cell> first = TakeCell(text);
  if (!first) return std::nullopt;
  std::optional<Cell> last = first;
  if (text.starts_with(':')) {
    text.remove_prefix(1);
    last = TakeCell(text);
  }
  if (!last || !text.empty()) return std::nullopt;
  const auto [left, right] = std::minmax(first->column, last->column);
  const auto [top, bottom] = std::minmax(first->row, last->row);
  return CellBlock{left, top, right - left + 1, bottom - top + 1};
}

std::string Shown(const CellBlock& block) {
  const std::string first = ShownCell(block.column, block.row);
  const std::string last = ShownCell(block.column + block.columns - 1, block.row + block.rows - 1);
  return first == last ? first : first + ':' + last;
}

bool Overlap(const CellBlock& first, const CellBlock& second) {
  return Meet(first.column, first.columns, second.column, second.columns) &&
         Meet(first.row, first.rows, second.row, second.rows);
}

}  // namespace rangewerks::apps
