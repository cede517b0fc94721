#include "apps/rangewerks/output.h"
#include "apps/rangewerks/output_parts.h"
#include "apps/rangewerks/text_table.h"
#include "apps/rangewerks/value_text.h"

namespace rangewerks::apps {

namespace {

/// The mark that stands for a bad cell and leads to its entry in the list.
std::string Mark(std::size_t badCell) { return "!" + std::to_string(badCell + 1); }

/// A number with at least the decimal places that its range allows.
std::string Amount(double value, std::int16_t places) {
  std::string text = NumberText(value);
  if (places < 1 || text.find('e') != std::string::npos) return text;
  std::size_t point = text.find('.');
  if (point == std::string::npos) {
    point = text.size();
    text += '.';
  }
  const std::size_t wanted = point + 1 + static_cast<std::size_t>(places);
  if (text.size() < wanted) text.append(wanted - text.size(), '0');
  return text;
}

std::string Shown(const FoundRange& range, const ReadValue& read) {
  if (read.badCell) return Mark(*read.badCell);
  if (const auto* number = read.value.TryGet<double>()) return Amount(*number, range.decimalPlaces);
  if (const auto* yes = read.value.TryGet<bool>()) return *yes ? "yes" : "no";
  return OneLine(ValueText(read.value), kWidestCell);
}

Align AlignOf(const FoundRange& range) {
  if (range.type == rdtDouble) return Align::Decimal;
  return range.type == rdtInteger ? Align::Right : Align::Left;
}

std::string HeaderOf(const PostingRead& posting) {
  TextTable table({{}, {}});
  for (std::size_t index = 0; index < posting.headers.size(); ++index) {
    const FoundRange& range = posting.ranges[posting.headers[index]];
    if (range.exists) table.Add({range.name, Shown(range, posting.header[index])});
  }
  return table.IsEmpty() ? "" : "\nHeader\n" + table.Render("  ");
}

std::string DetailOf(const PostingRead& posting) {
  std::vector<Column> columns{{"row", Align::Right}};
  for (const std::size_t place : posting.details) {
    const FoundRange& range = posting.ranges[place];
    if (range.exists) columns.push_back({range.name, AlignOf(range)});
  }
  if (columns.size() == 1) return {};
  TextTable table(std::move(columns));
  for (const DetailRow& row : posting.rows) {
    std::vector<std::string> cells{std::to_string(row.row)};
    for (std::size_t index = 0; index < row.values.size(); ++index) {
      const FoundRange& range = posting.ranges[posting.details[index]];
      if (range.exists) cells.push_back(Shown(range, row.values[index]));
    }
    table.Add(std::move(cells));
  }
  return "\nDetail: " + Counted(posting.rows.size(), "row", "rows") + "\n" + table.Render("  ");
}

std::string PlaceOf(const BadCell& bad) { return bad.address.empty() ? "?" : bad.address; }

std::string RowOf(const BadCell& bad) { return bad.row == 0 ? "header" : std::to_string(bad.row); }

std::string BadCellsOf(const PostingRead& posting) {
  if (posting.badCells.empty()) return "\nNo bad cells.\n";
  TextTable table({{"mark"},
                   {"cell"},
                   {"range"},
                   {"row", Align::Right},
                   {"holds"},
                   {"error"},
                   {"what is wrong"}});
  for (std::size_t index = 0; index < posting.badCells.size(); ++index) {
    const BadCell& bad = posting.badCells[index];
    table.Add({Mark(index), PlaceOf(bad), bad.range, RowOf(bad), OneLine(bad.content, kWidestCell),
               ErrorNumberText(bad.number), OneLine(bad.description, kWidestWords)});
  }
  return "\nBad cells: " + std::to_string(posting.badCells.size()) + "\n" + table.Render("  ");
}

}  // namespace

std::string TableOf(const std::string& book, const PostingRead& posting) {
  return TitleOf(book, posting) + HeaderOf(posting) + DetailOf(posting) + MissingOf(posting) +
         BadCellsOf(posting);
}

std::string BadCellLinesOf(const PostingRead& posting) {
  std::string text;
  for (const BadCell& bad : posting.badCells) {
    text += PlaceOf(bad) + ": " + bad.range + ", row " + RowOf(bad) + ": " +
            OneLine(bad.description, kWidestWords) + " [" + ErrorNumberText(bad.number) + "]\n";
  }
  return text;
}

}  // namespace rangewerks::apps
