#include "hosts/workbook/font.h"

namespace rangewerks::hosts::workbook {
Font::Font(SessionPointer session, SheetPointer sheet, Area area)
    : CellsObject(std::move(session), std::move(sheet), area) {}

const MemberTable& Font::Members() const {
  static const MemberTable table =
      MemberTable::For<Font>("Font")
          .Get(1, "Bold", &Font::GetBold, "Whether it is bold; null when the cells differ.")
          .Let(1, "Bold", &Font::LetBold, "Makes it bold, or not.");
  return table;
}

Variant Font::GetBold() const {
  return ValueOrNull(sheet_->grid.Formats().Common(area_, &CellFormat::isBold));
}

void Font::LetBold(bool isBold) {
  sheet_->grid.Formats().Change(area_, [isBold](CellFormat& format) { format.isBold = isBold; });
}

}  // namespace rangewerks::hosts::workbook
