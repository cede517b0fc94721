// The late-bound Font of the cells of a range in memory.
#pragma once

#include "hosts/objects/formats.h"
#include "hosts/workbook/cells_object.h"

namespace rangewerks::hosts::workbook {

class Font final : public CellsObject<objects::Font> {
 public:
  Font(SessionPointer session, SheetPointer sheet, Area area)
      : CellsObject(std::move(session), std::move(sheet), area) {}

 protected:
  Variant GetBold() const override;
  void LetBold(bool isBold) override;
};

}  // namespace rangewerks::hosts::workbook
