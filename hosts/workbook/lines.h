// The lines between the cells of one sheet.
#pragma once

#include <optional>

#include "hosts/workbook/area_values.h"

namespace rangewerks::hosts::workbook {

/// A double line is always thick.
enum class Line { None, Hairline, Thin, Medium, Thick, Double };

/// Each line is kept once, whichever of the two cells it was drawn for: as the line above a cell or
/// to its left. Those at the far ends of the sheet belong to cells just beyond it.
struct Lines {
  AreaValues<Line> above;
  AreaValues<Line> left;
};

/// Lines of one direction, by the cells that they are above or to the left of.
struct LineStretch {
  AreaValues<Line> Lines::*kind;
  Area cells;
};

/// One edge of an area, or all lines inside it in one direction, by the index that Range.Borders
/// has for them. Raises 1004 for another index; none where there is no inside.
std::optional<LineStretch> LinesOf(const Area& area, std::int32_t bordersIndex);

}  // namespace rangewerks::hosts::workbook
