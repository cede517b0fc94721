#include "apps/rangewerks/sheet_session.h"

#include <filesystem>
#include <vector>

#include "apps/rangewerks/host_locale.h"
#include "automation/dispatch.h"
#include "automation/text.h"

namespace rangewerks::apps {

namespace {

using automation::Error;
using automation::Locale;
using automation::Member;
using automation::Object;
using automation::Variant;

constexpr std::size_t kMostNamed = 20;  // ranges or sheets that one message names

Object OpenBook(Spreadsheet& program, const SheetOptions& options, Access access) {
  const HostKind kind = options.Host();
  try {
    return program.Open(options.book, access);
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
excel::Worksheet ChosenSheet(const Object& application, const SheetOptions& options) {
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

std::unique_ptr<Spreadsheet> Start(const SheetOptions& options) {
  RequireFile(options.book);
  return WithHost("can't start the spreadsheet program",
                  [&] { return StartSpreadsheet(options.Host()); });
}

}  // namespace

SheetSession::SheetSession(const SheetOptions& options, Access access)
    : program_(Start(options)), book_(OpenBook(*program_, options, access)) {
  WithHost(options.book + ": the sheet can't be found", [&] {
    const excel::Application application = excel::Workbook(book_).get_Application();
    sheet_ = ChosenSheet(application, options);
    Locale::SetCurrent(InLineWith(application, Locale::Current()));
  });
}

void RequireFile(const std::string& path) {
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored)) {
    throw Failure(path + ": this is a folder; give the workbook file itself");
  }
  if (!std::filesystem::exists(path, ignored)) {
    throw Failure(path + ": there is no such workbook; check the path");
  }
}

void RequireAnyRange(const std::string& book, const SheetRanges& found,
                     const clsInterfaceRangeList& list) {
  if (found.AnyRangeExists()) return;
  std::string words = book + ": none of the declared ranges is on the sheet \"" + found.sheet +
                      "\". These workbook names were looked for:";
  for (std::size_t index = 0; index < found.ranges.size() && index < kMostNamed; ++index) {
    const FoundRange& range = found.ranges[index];
    words += "\n  " + range.lookedForAs;
    if (range.lookedForAs != range.name) words += "  (range " + range.name + ")";
  }
  if (found.ranges.size() > kMostNamed) {
    words += "\n  and " + std::to_string(found.ranges.size() - kMostNamed) + " more";
  }
  words += list.get_SheetRangeNames()
               ? "\nDefine them in the workbook, choose another sheet with --sheet, or set "
                 "SheetRangeNames to false in the interface file if the names have no sheet part."
               : "\nDefine them in the workbook, choose another sheet with --sheet, or set "
                 "SheetRangeNames to true in the interface file if the names have a sheet part.";
  throw Failure(words);
}

void WriteResult(Console console, const std::string& text, const std::string& done) {
  console.output << text << std::flush;
  if (!console.output) throw Failure("the result can't be written to standard output" + done);
}

}  // namespace rangewerks::apps
