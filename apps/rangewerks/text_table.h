// Rows of short texts in aligned columns.
//
//   TextTable table({{"code", Align::Left}, {"amount", Align::Decimal}});
//   table.Add({"4000", "12.50"});
//   out += table.Render("  ");
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace rangewerks::apps {

enum class Align {
  Left,
  Right,
  Decimal,  ///< decimal points below each other; a text that is no number stands right
};

struct Column {
  std::string heading;
  Align align = Align::Left;
};

class TextTable {
 public:
  explicit TextTable(std::vector<Column> columns) : columns_(std::move(columns)) {}

  /// One row; texts left out at its end are empty.
  void Add(std::vector<std::string> row);
  bool IsEmpty() const { return rows_.empty(); }

  /// All lines, each with `indent` in front and without blanks at its end. The headings and a rule
  /// come first, unless no column has a heading.
  std::string Render(std::string_view indent) const;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

/// A text for one line of a terminal: line breaks, tabs and other control characters as "\n", "\t",
/// "\x1B", and what is longer than `most` characters cut, with "…" at its end.
std::string OneLine(std::string_view text, std::size_t most);

}  // namespace rangewerks::apps
