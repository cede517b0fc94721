#include "hosts/workbook/font.h"

namespace rangewerks::hosts::workbook {
Variant Font::GetBold() const {
  return ValueOrNull(sheet_->grid.Formats().Common(area_, &CellFormat::isBold));
}

void Font::LetBold(bool isBold) {
  sheet_->grid.Formats().Change(area_, [isBold](CellFormat& format) { format.isBold = isBold; });
}

}  // namespace rangewerks::hosts::workbook
