// Entering values and formulas into cells.
#pragma once

#include "automation/locale.h"
#include "automation/variant.h"
#include "hosts/libreoffice/sheet.h"

namespace rangewerks::hosts::libreoffice {

/// Enters one value into every cell, or a block of values cell by cell: one row or one column is
/// repeated, cells beyond the block become "#N/A". Texts are read in that locale. Raises 1004 when
/// a cell is locked on a protected sheet, before anything is written.
void WriteValue(Sheet& sheet, const Area& area, const automation::Variant& value,
                const automation::Locale& locale);

/// Clears values and formulas; formats and validation stay. Raises 1004 as WriteValue does.
void ClearCells(Sheet& sheet, const Area& area);

/// Raises 1004 when a cell is locked on a protected sheet: the office itself would write all the
/// same, or do nothing and say nothing.
void RequireWritable(Sheet& sheet, const Area& area);

}  // namespace rangewerks::hosts::libreoffice
