#include "hosts/workbook/lines.h"

#include <string>

#include "hosts/common/format_numbers.h"
#include "hosts/workbook/failure.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {
std::optional<LineStretch> LinesOf(const Area& area, std::int32_t bordersIndex) {
  Area cells = area;
  switch (bordersIndex) {
    case excel::xlEdgeTop:
      cells.rows = 1;
      return LineStretch{&Lines::above, cells};
    case excel::xlEdgeBottom:
      cells.row += area.rows;
      cells.rows = 1;
      return LineStretch{&Lines::above, cells};
    case excel::xlEdgeLeft:
      cells.columns = 1;
      return LineStretch{&Lines::left, cells};
    case excel::xlEdgeRight:
      cells.column += area.columns;
      cells.columns = 1;
      return LineStretch{&Lines::left, cells};
    case excel::xlInsideHorizontal:
      ++cells.row;
      --cells.rows;
      if (cells.rows == 0) return std::nullopt;
      return LineStretch{&Lines::above, cells};
    case kInsideVertical:
      ++cells.column;
      --cells.columns;
      if (cells.columns == 0) return std::nullopt;
      return LineStretch{&Lines::left, cells};
    default:
      Refuse(
          "Borders are 7 to 12 (left, top, bottom, right, inside vertical, inside horizontal), "
          "not " +
          std::to_string(bordersIndex));
  }
}

}  // namespace rangewerks::hosts::workbook
