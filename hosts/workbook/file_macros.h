// The code modules of a workbook in its file.
#pragma once

#include "hosts/workbook/json_entry.h"
#include "hosts/workbook/model.h"

namespace rangewerks::hosts::workbook {

/// Reads the modules into a workbook that has its sheets already. Raises 1004 with the place for
/// names that can't be or stand twice, sheets that aren't there, and code that isn't lines.
void ReadFileModules(Book& book, const JsonEntry& entry);

/// The modules that ReadFileModules can't do without: those that were added, and those of the
/// workbook and its sheets that have code or another name than a new one would. An empty list when
/// there are none.
nlohmann::ordered_json JsonOfModules(const Book& book);

}  // namespace rangewerks::hosts::workbook
