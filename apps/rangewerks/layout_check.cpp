#include "apps/rangewerks/layout_check.h"

#include <algorithm>

#include "apps/rangewerks/csv_document.h"
#include "apps/rangewerks/output_parts.h"
#include "apps/rangewerks/text_table.h"
#include "apps/rangewerks/value_text.h"

namespace rangewerks::apps {

LayoutCheck CheckLayout(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                        Progress& progress) {
  progress.Say("looking for the ranges");
  LayoutCheck check{LocateRanges(list, sheet), {}};
  const auto there = std::ranges::count(check.found.ranges, true, &FoundRange::exists);
  progress.Say("checking the layout of " + std::to_string(there) +
               (there == 1 ? " range" : " ranges"));
  try {
    list.ValidateRanges();
  } catch (const automation::Error& error) {
    sheet.get_Name();  // a spreadsheet program that has ended says nothing about the layout
    check.fault = error;
  }
  return check;
}

std::string TableOf(const std::string& book, const LayoutCheck& check) {
  TextTable table({{"range"}, {"on the sheet"}, {"address"}, {"rows", Align::Right}});
  for (const FoundRange& range : check.found.ranges) {
    table.Add({range.name, range.exists ? "yes" : "no", range.address,
               range.exists ? std::to_string(range.rows) : ""});
  }
  return TitleOf(book, check.found) + "\nRanges\n" + table.Render("  ") +
         (check.fault ? "\nThe layout isn't sound:\n" + FaultLinesOf(check, "  ")
                      : "\nThe layout is sound.\n");
}

std::string JsonOf(const std::string& book, const LayoutCheck& check) {
  return JsonText({{"book", book},
                   {"sheet", check.found.sheet},
                   {"sound", !check.fault},
                   {"ranges", JsonRanges(check.found)},
                   {"error", JsonFault(check)}});
}

Json JsonFault(const LayoutCheck& check) {
  if (!check.fault) return nullptr;
  return {{"number", check.fault->Number()},
          {"description", check.fault->Description()},
          {"source", check.fault->Source()}};
}

std::string CsvOf(const LayoutCheck& check) {
  std::string text = "range,exists,address,rows\n";
  for (const FoundRange& range : check.found.ranges) {
    text += CsvField(range.name) + (range.exists ? ",true," : ",false,") + CsvField(range.address) +
            ',' + std::to_string(range.rows) + '\n';
  }
  return text;
}

std::string FaultLinesOf(const LayoutCheck& check, const std::string& indent) {
  std::string text;
  if (!check.fault) return text;
  const std::string words =
      check.fault->Description() + " [" + ErrorNumberText(check.fault->Number()) + "]";
  std::size_t start = 0;
  while (start <= words.size()) {
    const std::size_t end = std::min(words.find("\r\n", start), words.size());
    text += indent + OneLine(words.substr(start, end - start), kWidestWords) + '\n';
    start = end + 2;
  }
  return text;
}

}  // namespace rangewerks::apps
