// How what was cleared is written out.
#include <algorithm>

#include "apps/rangewerks/clearing.h"
#include "apps/rangewerks/csv_document.h"
#include "apps/rangewerks/output_parts.h"
#include "apps/rangewerks/text_table.h"

namespace rangewerks::apps {

namespace {

const char* WordOf(RangeOutcome outcome) {
  switch (outcome) {
    case RangeOutcome::Cleared:
      return "cleared";
    case RangeOutcome::Kept:
      return "kept";
    case RangeOutcome::Excluded:
      return "excluded";
    case RangeOutcome::Absent:
      return "absent";
    case RangeOutcome::Other:
      break;
  }
  return "not chosen";
}

/// What stands behind the outcome for a person.
const char* WordsFor(RangeOutcome outcome) {
  switch (outcome) {
    case RangeOutcome::Kept:
      return "kept: it has a formula";
    case RangeOutcome::Excluded:
      return "kept: its group is excluded";
    case RangeOutcome::Absent:
      return "absent: it isn't on the sheet";
    case RangeOutcome::Cleared:
    case RangeOutcome::Other:
      break;
  }
  return WordOf(outcome);
}

}  // namespace

std::string TableOf(const std::string& book, const std::string& saved, const ClearReport& report) {
  TextTable table({{"range"}, {"address"}, {"outcome"}});
  for (std::size_t index = 0; index < report.outcomes.size(); ++index) {
    const FoundRange& range = report.found.ranges[index];
    table.Add({range.name, range.address, WordsFor(report.outcomes[index])});
  }
  const auto cleared = std::ranges::count(report.outcomes, RangeOutcome::Cleared);
  return TitleOf(book, report.found) + "\nRanges\n" + table.Render("  ") +
         "\nCleared: " + Counted(static_cast<std::size_t>(cleared), "range", "ranges") +
         "\nSaved to: " + OneLine(saved, kWidestWords) + "\n";
}

std::string JsonOf(const std::string& book, const std::string& saved, const ClearReport& report) {
  Json ranges = Json::object();
  for (std::size_t index = 0; index < report.outcomes.size(); ++index) {
    const FoundRange& range = report.found.ranges[index];
    ranges[range.name] = {{"address", TextOrNull(range.address)},
                          {"outcome", WordOf(report.outcomes[index])}};
  }
  return JsonText({{"book", book},
                   {"sheet", report.found.sheet},
                   {"saved", saved},
                   {"ranges", std::move(ranges)}});
}

std::string CsvOf(const ClearReport& report) {
  std::string text = "range,address,outcome\n";
  for (std::size_t index = 0; index < report.outcomes.size(); ++index) {
    const FoundRange& range = report.found.ranges[index];
    text += CsvField(range.name) + ',' + CsvField(range.address) + ',' +
            WordOf(report.outcomes[index]) + '\n';
  }
  return text;
}

}  // namespace rangewerks::apps
