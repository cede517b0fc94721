#include "apps/rangewerks/fill_output.h"

#include "apps/rangewerks/csv_document.h"
#include "apps/rangewerks/output_parts.h"
#include "apps/rangewerks/text_table.h"
#include "apps/rangewerks/value_text.h"

namespace rangewerks::apps {

namespace {

const char* WordOf(CellOutcome outcome) {
  switch (outcome) {
    case CellOutcome::Written:
      return "written";
    case CellOutcome::Differs:
      return "differs";
    case CellOutcome::Refused:
      return "refused";
    case CellOutcome::Absent:
      break;
  }
  return "absent";
}

std::string RowOf(const FilledCell& cell) {
  return cell.row == 0 ? "header" : std::to_string(cell.row);
}

/// What stands behind the outcome for a person.
std::string WordsFor(const FilledCell& cell) {
  const std::string holds = OneLine(ValueText(cell.holds), kWidestCell);
  switch (cell.outcome) {
    case CellOutcome::Differs:
      return "differs: " + (cell.complaint.empty()
                                ? "the cell took it as " + (holds.empty() ? "nothing" : holds)
                                : OneLine(cell.complaint, kWidestWords));
    case CellOutcome::Refused:
      return "refused by a switch: the cell keeps " + (holds.empty() ? "its content" : holds);
    case CellOutcome::Absent:
      return "absent: the range isn't on the sheet";
    case CellOutcome::Written:
      break;
  }
  return "written";
}

std::string SummaryOf(const std::string& saved, const FillReport& report) {
  std::string text = "\nWritten: " + std::to_string(report.Count(CellOutcome::Written)) + " of " +
                     Counted(report.cells.size(), "value", "values");
  for (const auto outcome : {CellOutcome::Differs, CellOutcome::Refused, CellOutcome::Absent}) {
    const std::size_t count = report.Count(outcome);
    if (count > 0) text += std::string(", ") + WordOf(outcome) + ": " + std::to_string(count);
  }
  return text + "\nSaved to: " + OneLine(saved, kWidestWords) + "\n";
}

}  // namespace

std::string TableOf(const std::string& book, const std::string& saved, const FillReport& report) {
  TextTable table({{"range"}, {"row", Align::Right}, {"cell"}, {"value"}, {"outcome"}});
  for (const FilledCell& cell : report.cells) {
    table.Add({cell.range, RowOf(cell), cell.address, OneLine(ValueText(cell.value), kWidestCell),
               WordsFor(cell)});
  }
  return TitleOf(book, report.found) + "\nCells\n" + table.Render("  ") + SummaryOf(saved, report);
}

std::string JsonOf(const std::string& book, const std::string& saved, const FillReport& report) {
  Json cells = Json::array();
  for (const FilledCell& cell : report.cells) {
    cells.push_back({{"range", cell.range},
                     {"row", cell.row},
                     {"address", TextOrNull(cell.address)},
                     {"value", JsonValue(cell.value)},
                     {"outcome", WordOf(cell.outcome)},
                     {"holds", JsonValue(cell.holds)}});
  }
  return JsonText({{"book", book},
                   {"sheet", report.found.sheet},
                   {"saved", saved},
                   {"written", report.Count(CellOutcome::Written)},
                   {"differs", report.Count(CellOutcome::Differs)},
                   {"refused", report.Count(CellOutcome::Refused)},
                   {"absent", report.Count(CellOutcome::Absent)},
                   {"cells", std::move(cells)}});
}

std::string CsvOf(const FillReport& report) {
  std::string text = "range,row,address,value,outcome,holds\n";
  for (const FilledCell& cell : report.cells) {
    text += CsvField(cell.range) + ',' + std::to_string(cell.row) + ',' + CsvField(cell.address) +
            ',' + CsvField(ValueText(cell.value)) + ',' + WordOf(cell.outcome) + ',' +
            CsvField(ValueText(cell.holds)) + '\n';
  }
  return text;
}

}  // namespace rangewerks::apps
