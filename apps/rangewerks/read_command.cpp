#include "apps/rangewerks/read_command.h"

#include "apps/rangewerks/interface_file.h"
#include "apps/rangewerks/output.h"
#include "apps/rangewerks/posting_read.h"
#include "apps/rangewerks/progress.h"
#include "apps/rangewerks/sheet_session.h"

namespace rangewerks::apps {

namespace {

std::string TextOf(const SheetOptions& options, const PostingRead& posting) {
  switch (options.output) {
    case OutputForm::Json:
      return JsonOf(options.book, posting);
    case OutputForm::Csv:
      return CsvOf(posting);
    case OutputForm::Table:
      break;
  }
  return TableOf(options.book, posting);
}

PostingRead ReadBook(const SheetOptions& options, clsInterfaceRangeList& list, Console console) {
  const SheetSession session(options, Access::Read);
  return WithHost(options.book + ": reading stopped", [&] {
    Progress progress(console.messages, console.messagesOnTerminal);
    return ReadPosting(list, session.Sheet(),
                       [&](auto row, auto rows) { progress.Show(row, rows); });
  });
}

}  // namespace

ExitStatus RunRead(const SheetOptions& options, Console console) {
  const auto list = ReadInterfaceFile(options.interfaceFile);
  const PostingRead posting = ReadBook(options, *list, console);
  RequireAnyRange(options.book, posting, *list);

  WriteResult(console, TextOf(options, posting));
  if (options.output == OutputForm::Csv) console.messages << BadCellLinesOf(posting);
  return posting.badCells.empty() ? kAllWell : kFindings;
}

}  // namespace rangewerks::apps
