// A workbook opened in a spreadsheet program, and the sheet of it that a command works on.
#pragma once

#include <memory>
#include <string>

#include "apps/rangewerks/command.h"
#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/sheet_ranges.h"
#include "automation/error.h"
#include "platform/excel.h"

namespace rangewerks::apps {

class SheetSession {
 public:
  /// Starts the program, opens the workbook, finds the sheet, and sets the process's locale to
  /// agree with the program's. Raises Failure when any of that can't be done.
  SheetSession(const SheetOptions& options, Access access);

  const excel::Worksheet& Sheet() const { return sheet_; }
  /// Writes the workbook as it now is to a new file. Raises the program's error.
  void SaveCopyAs(const std::string& path) { program_->SaveCopyAs(book_, path); }

 private:
  std::unique_ptr<Spreadsheet> program_;
  automation::Object book_;
  excel::Worksheet sheet_;
};

/// Runs a step with the spreadsheet program; what the program says comes behind the words of what
/// was being done.
template <class Step>
auto WithHost(const std::string& doing, const Step& step) {
  try {
    return step();
  } catch (const automation::Error& error) {
    throw Failure(doing + ": " + error.Description());
  }
}

/// Raises Failure when there is no such workbook file.
void RequireFile(const std::string& path);

/// Raises Failure, with the workbook names that were looked for, when not one range was found: an
/// empty result would look like an empty posting.
void RequireAnyRange(const std::string& book, const SheetRanges& found,
                     const clsInterfaceRangeList& list);

/// Writes a command's whole result. Raises Failure when that fails; `done` says in its words what
/// has been done all the same.
void WriteResult(Console console, const std::string& text, const std::string& done = {});

}  // namespace rangewerks::apps
