// How what was placed is written out.
#include <algorithm>

#include "apps/rangewerks/csv_document.h"
#include "apps/rangewerks/output_parts.h"
#include "apps/rangewerks/placing.h"
#include "apps/rangewerks/text_table.h"

namespace rangewerks::apps {

namespace {

const char* WordOf(const PlacedRange& range) {
  return range.movedFrom.empty() ? "placed" : "moved";
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : " ") + text;
  return joined;
}

std::string FailuresOf(const PlaceReport& report) {
  TextTable table({{}, {}});
  for (const PlacedRange& range : report.ranges) {
    for (const std::string& failure : range.failures) {
      table.Add({range.name, OneLine(failure, kWidestWords)});
    }
  }
  return table.IsEmpty() ? "" : "\nNot everything could be added\n" + table.Render("  ");
}

std::string SoundnessOf(const LayoutCheck& check) {
  return MissingOf(check.found) + (check.fault
                                       ? "\nThe layout isn't sound:\n" + FaultLinesOf(check, "  ")
                                       : "\nThe layout is sound.\n");
}

/// The declared ranges that the sheet lacks.
std::vector<const FoundRange*> Absent(const PlaceOutput& output, const PlaceReport& report) {
  std::vector<const FoundRange*> absent;
  if (!output.wholeInterface) return absent;
  for (const FoundRange& range : report.check.found.ranges) {
    if (!range.exists) absent.push_back(&range);
  }
  return absent;
}

}  // namespace

std::string TableOf(const PlaceOutput& output, const PlaceReport& report) {
  TextTable table({{"range"}, {"address"}, {"name"}, {"outcome"}});
  for (const PlacedRange& range : report.ranges) {
    table.Add({range.name, range.address, OneLine(range.workbookName, kWidestCell),
               range.movedFrom.empty() ? "placed" : "moved from " + range.movedFrom});
  }
  return TitleOf(output.book, report.check.found) + "\nRanges\n" + table.Render("  ") +
         FailuresOf(report) + (output.wholeInterface ? SoundnessOf(report.check) : "") +
         "\nPlaced: " + Counted(report.ranges.size(), "range", "ranges") +
         "\nSaved to: " + OneLine(output.saved, kWidestWords) + "\n";
}

std::string JsonOf(const PlaceOutput& output, const PlaceReport& report) {
  Json ranges = Json::object();
  for (const PlacedRange& range : report.ranges) {
    ranges[range.name] = {{"address", range.address},
                          {"name", range.workbookName},
                          {"outcome", WordOf(range)},
                          {"moved_from", TextOrNull(range.movedFrom)},
                          {"failures", range.failures}};
  }
  for (const FoundRange* range : Absent(output, report)) {
    ranges[range->name] = {{"outcome", "absent"}, {"mandatory", range->isMandatory}};
  }
  Json document = {{"book", output.book},
                   {"sheet", report.check.found.sheet},
                   {"saved", output.saved},
                   {"placed", report.ranges.size()},
                   {"ranges", std::move(ranges)}};
  if (output.wholeInterface) {
    document["sound"] = !report.check.fault;
    document["error"] = JsonFault(report.check);
  }
  return JsonText(document);
}

std::string CsvOf(const PlaceOutput& output, const PlaceReport& report) {
  std::string text = "range,address,name,outcome,failures\n";
  for (const PlacedRange& range : report.ranges) {
    text += CsvField(range.name) + ',' + CsvField(range.address) + ',' +
            CsvField(range.workbookName) + ',' + WordOf(range) + ',' +
            CsvField(Joined(range.failures)) + '\n';
  }
  for (const FoundRange* range : Absent(output, report)) {
    text += CsvField(range->name) + ",,,absent,\n";
  }
  return text;
}

}  // namespace rangewerks::apps
