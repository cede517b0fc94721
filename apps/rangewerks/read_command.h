// The command "read": what a posting program would read from one sheet of a workbook.
#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "apps/rangewerks/spreadsheet.h"

namespace rangewerks::apps {

enum class OutputForm { Table, Json, Csv };

struct ReadOptions {
  std::string book;              ///< path of the workbook file
  std::string interfaceFile;     ///< path
  std::string sheet;             ///< empty for the sheet in front
  std::optional<HostKind> host;  ///< by the book's extension when not given
  OutputForm output = OutputForm::Table;
};

/// Where a command writes, and whether a person watches the messages.
struct Console {
  std::ostream& output;
  std::ostream& messages;
  bool messagesOnTerminal = false;
};

/// Exit statuses of all commands.
enum ExitStatus : int {
  kNoBadCells = 0,
  kBadCells = 1,
  kUnusable = 2,  ///< wrong usage or files
};

/// Reads and writes the whole result at once. Raises Failure, before anything is written, when
/// there is nothing to read: a file, the sheet, or all ranges are missing or wrong. Sets the
/// process's locale to agree with the host.
ExitStatus RunRead(const ReadOptions& options, Console console);

}  // namespace rangewerks::apps
