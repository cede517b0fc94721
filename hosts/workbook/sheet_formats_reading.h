// How the cells of a sheet look and what may be entered into them, as a workbook file tells it.
#pragma once

#include "hosts/workbook/json_entry.h"
#include "hosts/workbook/model.h"

namespace rangewerks::hosts::workbook {

/// Reads the keys "formats", "lines", "widths", "validation" and "conditional_formats" of a sheet.
/// Raises 1004 with the place for whatever is wrong.
void ReadSheetFormats(Sheet& sheet, const JsonEntry& entry);

}  // namespace rangewerks::hosts::workbook
