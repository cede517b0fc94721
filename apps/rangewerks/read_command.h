// The command "read": what a posting program would read from one sheet of a workbook.
#pragma once

#include "apps/rangewerks/command.h"

namespace rangewerks::apps {

/// Reads and writes the whole result at once; bad cells are findings. Raises Failure, before
/// anything is written, when there is nothing to read: a file, the sheet, or all ranges are missing
/// or wrong. Sets the process's locale to agree with the host.
ExitStatus RunRead(const SheetOptions& options, Console console);

}  // namespace rangewerks::apps
