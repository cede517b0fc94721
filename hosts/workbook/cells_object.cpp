#include "hosts/workbook/cells_object.h"

#include "hosts/common/name_rules.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {

void CellsObject::RequireAlive() const {
  if (sheet_->deleted) Refuse("The sheet of this range has been deleted");
}

std::string CellsObject::Place() const {
  return QuotedSheetName(sheet_->name) + "!" + AddressOf(area_);
}

}  // namespace rangewerks::hosts::workbook
