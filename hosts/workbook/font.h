// The late-bound Font of the cells of a range.
#pragma once

#include "hosts/workbook/cells_object.h"

namespace rangewerks::hosts::workbook {

class Font final : public CellsObject<> {
 public:
  Font(SessionPointer session, SheetPointer sheet, Area area);
  const MemberTable& Members() const override;

 private:
  Variant GetBold() const;
  void LetBold(bool isBold);
};

}  // namespace rangewerks::hosts::workbook
