// The command "fill": values from a data file into the ranges of a sheet, saved as a copy.
#pragma once

#include <string>

#include "apps/rangewerks/command.h"
#include "apps/rangewerks/save_target.h"

namespace rangewerks::apps {

struct FillOptions {
  SheetOptions sheet;
  std::string data;  ///< path of the data file
  SaveOptions save;
};

/// Values that are refused, absent, or read back as others are findings; the workbook is saved all
/// the same. Raises Failure, before anything is saved, for wrong usage and files and when the
/// spreadsheet program fails. Sets the process's locale to agree with the host.
ExitStatus RunFill(const FillOptions& options, Console console);

}  // namespace rangewerks::apps
