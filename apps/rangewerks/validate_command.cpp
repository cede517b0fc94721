#include "apps/rangewerks/validate_command.h"

#include "apps/rangewerks/interface_file.h"
#include "apps/rangewerks/layout_check.h"
#include "apps/rangewerks/sheet_session.h"

namespace rangewerks::apps {

namespace {

std::string TextOf(const SheetOptions& options, const LayoutCheck& check) {
  switch (options.output) {
    case OutputForm::Json:
      return JsonOf(options.book, check);
    case OutputForm::Csv:
      return CsvOf(check);
    case OutputForm::Table:
      break;
  }
  return TableOf(options.book, check);
}

}  // namespace

ExitStatus RunValidate(const SheetOptions& options, Console console) {
  const auto list = ReadInterfaceFile(options.interfaceFile);
  const SheetSession session(options, Access::Read);
  const LayoutCheck check = WithHost(options.book + ": validating stopped", [&] {
    Progress progress(console.messages, console.messagesOnTerminal);
    return CheckLayout(*list, session.Sheet(), progress);
  });
  // An unsound layout says itself what is missing.
  if (!check.fault) RequireAnyRange(options.book, check.found, *list);

  WriteResult(console, TextOf(options, check));
  if (options.output == OutputForm::Csv) console.messages << FaultLinesOf(check, "");
  return check.fault ? kFindings : kAllWell;
}

}  // namespace rangewerks::apps
