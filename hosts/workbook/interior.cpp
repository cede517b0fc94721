#include "hosts/workbook/interior.h"

namespace rangewerks::hosts::workbook {

std::optional<Color> CellFill::Fill() {
  return sheet_->grid.Formats().Common(area_, &CellFormat::fill);
}

void CellFill::Paint(Color fill) {
  sheet_->grid.Formats().Change(area_, [fill](CellFormat& format) { format.fill = fill; });
}

void ConditionFill::RequireAlive() const {
  CellsObject::RequireAlive();
  RequireThere(*condition_);
}

}  // namespace rangewerks::hosts::workbook
