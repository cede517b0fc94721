// One cell of a workbook file.
#pragma once

#include "hosts/workbook/cell.h"
#include "hosts/workbook/json_entry.h"

namespace rangewerks::hosts::workbook {

/// Reads a cell: null, a boolean, a number, a text, or an object with one of "value", "date",
/// "error" and "formula", and perhaps a "format"; beside a formula "shown" tells what it shows.
/// Raises 1004 with the place for anything else, and for an integer that a double can't hold
/// exactly.
void ReadFileCell(const JsonEntry& entry, Cell& cell);

/// Reads "2024-01-31" or "2024-01-31T13:45:00". Raises 1004 with the place for anything else.
automation::Date ReadFileDate(const JsonEntry& entry);

}  // namespace rangewerks::hosts::workbook
