#include "apps/rangewerks/clear_command.h"

#include "apps/rangewerks/interface_file.h"
#include "apps/rangewerks/sheet_session.h"

namespace rangewerks::apps {

namespace {

std::string TextOf(const ClearOptions& options, const std::string& saved,
                   const ClearReport& report) {
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

ExitStatus RunClear(const ClearOptions& options, Console console) {
  const auto list = ReadInterfaceFile(options.sheet.interfaceFile);
  RequireDeclared(options.choice, *list);
  RequireFile(options.sheet.book);
  const SaveTarget target(options.save, options.sheet);
  SheetSession session(options.sheet, Access::Write);
  const ClearReport report = WithHost(options.sheet.book + ": clearing stopped", [&] {
    Progress progress(console.messages, console.messagesOnTerminal);
    ClearReport cleared = Clear(*list, session.Sheet(), options.choice, progress);
    RequireAnyRange(options.sheet.book, cleared.found, *list);
    progress.Say("saving to " + target.Path());
    target.Write([&](const std::string& path) { session.SaveCopyAs(path); });
    return cleared;
  });

  WriteResult(console, TextOf(options, target.Path(), report),
              "; the workbook has been saved to " + target.Path() + " all the same");
  return report.KeptAny() ? kFindings : kAllWell;
}

}  // namespace rangewerks::apps
