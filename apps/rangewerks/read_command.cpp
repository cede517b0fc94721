#include "apps/rangewerks/read_command.h"

#include <filesystem>
#include <vector>

#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/host_locale.h"
#include "apps/rangewerks/interface_file.h"
#include "apps/rangewerks/output.h"
#include "apps/rangewerks/posting_read.h"
#include "apps/rangewerks/progress.h"
#include "automation/dispatch.h"
#include "automation/error.h"
#include "automation/text.h"

namespace rangewerks::apps {

namespace {

using automation::Error;
using automation::Locale;
using automation::Member;
using automation::Object;
using automation::Variant;

constexpr std::size_t kMostNamed = 20;  // ranges or sheets that one message names

void RequireFile(const std::string& path) {
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored)) {
    throw Failure(path + ": this is a folder; give the workbook file itself");
  }
  if (!std::filesystem::exists(path, ignored)) {
    throw Failure(path + ": there is no such workbook; check the path");
  }
}

/// Runs a step with the host; what the host says comes behind the words of what was being done.
template <class Step>
auto WithHost(const std::string& doing, const Step& step) {
  try {
    return step();
  } catch (const Error& error) {
    throw Failure(doing + ": " + error.Description());
  }
}

Object OpenBook(Spreadsheet& program, const ReadOptions& options, HostKind kind) {
  try {
    return program.Open(options.book);
  } catch (const Error& error) {
    std::string words = "can't open the workbook: " + error.Description();
    if (kind == HostKind::Workbook && HostFor(options.book) != kind) {
      words +=
          "\nThe host \"workbook\" reads JSON workbook files only; for others use --host "
          "libreoffice.";
    }
    throw Failure(words);
  }
}

std::vector<excel::Worksheet> SheetsOf(const Object& application) {
  std::vector<excel::Worksheet> sheets;
  const auto walk = application.Get(Member("Sheets")).AsObject().Enumerate();
  for (Variant sheet; walk->Next(sheet);) sheets.emplace_back(sheet.AsObject());
  return sheets;
}

std::string QuotedNames(const std::vector<excel::Worksheet>& sheets) {
  std::string names;
  for (std::size_t index = 0; index < sheets.size() && index < kMostNamed; ++index) {
    names += (index == 0 ? "\"" : ", \"") + sheets[index].get_Name() + "\"";
  }
  if (sheets.size() > kMostNamed) {
    names += " and " + std::to_string(sheets.size() - kMostNamed) + " more";
  }
  return names;
}

/// A sheet of the active workbook.
excel::Worksheet ChosenSheet(const Object& application, const ReadOptions& options) {
  if (options.sheet.empty()) {
    return excel::Worksheet(application.Get(Member("ActiveSheet")).AsObject());
  }
  const auto sheets = SheetsOf(application);
  for (const excel::Worksheet& sheet : sheets) {
    if (automation::EqualText(sheet.get_Name(), options.sheet)) return sheet;
  }
  throw Failure(options.book + ": there is no sheet \"" + options.sheet + "\"; the workbook has " +
                QuotedNames(sheets));
}

/// For a sheet on which not one range was found: an empty result would look like an empty posting.
[[noreturn]] void RefuseWithoutRanges(const std::string& book, const PostingRead& posting,
                                      const clsInterfaceRangeList& list) {
  std::string words = book + ": none of the declared ranges is on the sheet \"" + posting.sheet +
                      "\". These workbook names were looked for:";
  for (std::size_t index = 0; index < posting.ranges.size() && index < kMostNamed; ++index) {
    const FoundRange& range = posting.ranges[index];
    words += "\n  " + range.lookedForAs;
    if (range.lookedForAs != range.name) words += "  (range " + range.name + ")";
  }
  if (posting.ranges.size() > kMostNamed) {
    words += "\n  and " + std::to_string(posting.ranges.size() - kMostNamed) + " more";
  }
  words += list.get_SheetRangeNames()
               ? "\nDefine them in the workbook, choose another sheet with --sheet, or set "
                 "SheetRangeNames to false in the interface file if the names have no sheet part."
               : "\nDefine them in the workbook, choose another sheet with --sheet, or set "
                 "SheetRangeNames to true in the interface file if the names have a sheet part.";
  throw Failure(words);
}

std::string TextOf(const ReadOptions& options, const PostingRead& posting) {
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

PostingRead ReadBook(const ReadOptions& options, clsInterfaceRangeList& list, Console console) {
  const HostKind kind = options.host.value_or(HostFor(options.book));
  const auto program =
      WithHost("can't start the spreadsheet program", [&] { return StartSpreadsheet(kind); });
  const excel::Workbook book(OpenBook(*program, options, kind));
  return WithHost(options.book + ": reading stopped", [&] {
    const excel::Application application = book.get_Application();
    const excel::Worksheet sheet = ChosenSheet(application, options);
    Locale::SetCurrent(InLineWith(application, Locale::Current()));
    Progress progress(console.messages, console.messagesOnTerminal);
    return ReadPosting(list, sheet, [&](auto row, auto rows) { progress.Show(row, rows); });
  });
}

}  // namespace

ExitStatus RunRead(const ReadOptions& options, Console console) {
  const auto list = ReadInterfaceFile(options.interfaceFile);
  RequireFile(options.book);
  const PostingRead posting = ReadBook(options, *list, console);
  if (!posting.AnyRangeExists()) RefuseWithoutRanges(options.book, posting, *list);

  console.output << TextOf(options, posting) << std::flush;
  if (!console.output) throw Failure("the result can't be written to standard output");
  if (options.output == OutputForm::Csv) console.messages << BadCellLinesOf(posting);
  return posting.badCells.empty() ? kNoBadCells : kBadCells;
}

}  // namespace rangewerks::apps
