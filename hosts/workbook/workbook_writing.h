// Writes a workbook as a plain JSON file (docs/workbook-file.md).
#pragma once

#include <string>

#include "hosts/workbook/model.h"

namespace rangewerks::hosts::workbook {

/// Writes the file anew, so that reading it gives the same workbook: sheets, cells with their
/// formats, formulas and what they show, names, code modules, document properties, the sheet in
/// front, and the facts of the locale that were set in the session. What was selected isn't kept.
/// Raises 1004 when the file can't be written; it may then be there in part.
void WriteWorkbookFile(const Session& session, const Book& book, const std::string& path);

}  // namespace rangewerks::hosts::workbook
