#include "apps/rangewerks/text_table.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "automation/text.h"

namespace rangewerks::apps {

namespace {

using automation::Length;

constexpr std::string_view kGap = "  ";  // between two columns

std::string Repeated(std::string_view text, std::size_t times) {
  std::string result;
  for (; times > 0; --times) result += text;
  return result;
}

bool IsNumber(const std::string& text) {
  return !text.empty() && text.find_first_not_of("-.0123456789e+") == std::string::npos;
}

/// The decimal point and what follows it.
std::size_t LengthBehindWhole(const std::string& text) {
  const std::size_t point = text.find('.');
  return point == std::string::npos ? 0 : text.size() - point;
}

/// Brings decimal points below each other by blanks behind the shorter fractions.
void AlignPoints(std::vector<std::string>& cells) {
  std::size_t longest = 0;
  for (const std::string& cell : cells) {
    if (IsNumber(cell)) longest = std::max(longest, LengthBehindWhole(cell));
  }
  for (std::string& cell : cells) {
    if (IsNumber(cell)) cell.append(longest - LengthBehindWhole(cell), ' ');
  }
}

/// The lines of one column, all of the same width: heading and rule, if any, then the cells.
std::vector<std::string> Laid(const Column& column, std::vector<std::string> cells, bool headed) {
  if (column.align == Align::Decimal) AlignPoints(cells);
  std::size_t width = headed ? Length(column.heading) : 0;
  for (const std::string& cell : cells) width = std::max(width, Length(cell));
  if (headed) cells.insert(cells.begin(), column.heading);
  for (std::string& cell : cells) {
    const std::string blanks(width - Length(cell), ' ');
    cell.insert(column.align == Align::Left ? cell.size() : 0, blanks);
  }
  if (headed) cells.insert(cells.begin() + 1, Repeated("─", width));
  return cells;
}

}  // namespace

void TextTable::Add(std::vector<std::string> row) {
  row.resize(columns_.size());
  rows_.push_back(std::move(row));
}

std::string TextTable::Render(std::string_view indent) const {
  const bool headed =
      std::ranges::any_of(columns_, [](const Column& column) { return !column.heading.empty(); });
  std::vector<std::string> lines(rows_.size() + (headed ? 2 : 0));
  for (std::size_t index = 0; index < columns_.size(); ++index) {
    std::vector<std::string> cells;
    cells.reserve(rows_.size());
    for (const auto& row : rows_) cells.push_back(row[index]);
    const std::vector<std::string> laid = Laid(columns_[index], std::move(cells), headed);
    for (std::size_t line = 0; line < lines.size(); ++line) {
      lines[line] += (index == 0 ? indent : kGap);
      lines[line] += laid[line];
    }
  }
  std::string text;
  for (const std::string& line : lines) {
    text += automation::TrimRight(line);
    text += '\n';
  }
  return text;
}

std::string OneLine(std::string_view text, std::size_t most) {
  std::string line;
  for (const char each : text) {
    const auto byte = static_cast<unsigned char>(each);
    if (each == '\n') {
      line += "\\n";
    } else if (each == '\r') {
      line += "\\r";
    } else if (each == '\t') {
      line += "\\t";
    } else if (byte < 0x20 || byte == 0x7F) {
      std::array<char, 8> code{};
      std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned>(byte));
      line += code.data();
    } else {
      line += each;
    }
  }
  if (Length(line) <= most) return line;
  return std::string(automation::Left(line, most - 1)) + "…";
}

}  // namespace rangewerks::apps
