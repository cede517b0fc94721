#include "apps/rangewerks/fill_command.h"

#include "apps/rangewerks/fill_output.h"
#include "apps/rangewerks/interface_file.h"
#include "apps/rangewerks/progress.h"
#include "apps/rangewerks/sheet_session.h"

namespace rangewerks::apps {

namespace {

std::string TextOf(const FillOptions& options, const std::string& saved, const FillReport& report) {
  switch (options.sheet.output) {
    case OutputForm::Json:
      return JsonOf(options.sheet.book, saved, report);
    case OutputForm::Csv:
      return CsvOf(report);
    case OutputForm::Table:
      break;
  }
  return TableOf(options.sheet.book, saved, report);
}

}  // namespace

ExitStatus RunFill(const FillOptions& options, Console console) {
  const auto list = ReadInterfaceFile(options.sheet.interfaceFile);
  RequireFile(options.sheet.book);
  std::vector<GivenValue> values = ReadFillFile(options.data, *list);
  const SaveTarget target(options.save, options.sheet);
  SheetSession session(options.sheet, Access::Write);
  const FillReport report = WithHost(options.sheet.book + ": filling stopped", [&] {
    const SheetRanges found = LocateRanges(*list, session.Sheet());
    RequireAnyRange(options.sheet.book, found, *list);
    values = FitToSheet(std::move(values), found, options.data);
    Progress progress(console.messages, console.messagesOnTerminal);
    FillReport filled = Fill(*list, found, values,
                             [&](auto cell, auto cells) { progress.Show(cell, cells, "cell"); });
    progress.Say("saving to " + target.Path());
    target.Write([&](const std::string& path) { session.SaveCopyAs(path); });
    return filled;
  });

  WriteResult(console, TextOf(options, target.Path(), report),
              "; the workbook has been saved to " + target.Path() + " all the same");
  return report.Count(CellOutcome::Written) == report.cells.size() ? kAllWell : kFindings;
}

}  // namespace rangewerks::apps
