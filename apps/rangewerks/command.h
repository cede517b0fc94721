// What all commands have in common.
#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "apps/rangewerks/spreadsheet.h"

namespace rangewerks::apps {

enum class OutputForm { Table, Json, Csv };

/// The sheet that a command works on, the ranges declared for it, and how to print what came of it.
struct SheetOptions {
  std::string book;              ///< path of the workbook file
  std::string interfaceFile;     ///< path
  std::string sheet;             ///< empty for the sheet in front
  std::optional<HostKind> host;  ///< by the book's extension when not given
  OutputForm output = OutputForm::Table;

  HostKind Host() const { return host.value_or(HostFor(book)); }
};

/// Where a command writes, and whether a person watches the messages.
struct Console {
  std::ostream& output;
  std::ostream& messages;
  bool messagesOnTerminal = false;
};

/// Exit statuses of all commands.
enum ExitStatus : int {
  kAllWell = 0,
  kFindings = 1,  ///< the command was carried out, and has something to complain of
  kUnusable = 2,  ///< wrong usage or files
};

}  // namespace rangewerks::apps
