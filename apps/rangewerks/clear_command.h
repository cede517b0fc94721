// The command "clear": empties the ranges of a sheet and saves a copy.
#pragma once

#include "apps/rangewerks/clearing.h"
#include "apps/rangewerks/command.h"
#include "apps/rangewerks/save_target.h"

namespace rangewerks::apps {

struct ClearOptions {
  SheetOptions sheet;
  ClearChoice choice;
  SaveOptions save;
};

/// A range that was to be cleared and stays for its formula is a finding; the workbook is saved all
/// the same. Raises Failure, before anything is saved, for wrong usage and files and when the
/// spreadsheet program fails. Sets the process's locale to agree with the host.
ExitStatus RunClear(const ClearOptions& options, Console console);

}  // namespace rangewerks::apps
