// What cells hold, as the object model tells it.
#pragma once

#include "automation/variant.h"
#include "hosts/libreoffice/sheet.h"

namespace rangewerks::hosts::libreoffice {

/// The value of one cell, or the values of a block: a number, text, boolean, error value, empty, or
/// a date where the format shows a date or a time.
automation::Variant ReadValue(Sheet& sheet, const Area& area);

/// What was entered, as text: a formula in the object model's notation, a number with a decimal
/// point, "TRUE", "#N/A"; empty for an empty cell.
automation::Variant ReadFormula(Sheet& sheet, const Area& area);

/// True when every cell holds a formula, false when none does, null when some do. Booleans and
/// error values are no formulas, although the office keeps them as such.
automation::Variant ReadHasFormula(Sheet& sheet, const Area& area);

/// Raises 7 when the area has too many cells to be held at once.
void RequireMemoryFor(const Area& area);

}  // namespace rangewerks::hosts::libreoffice
