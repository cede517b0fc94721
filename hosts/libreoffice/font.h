// The late-bound Font of cells of the office.
#pragma once

#include "hosts/libreoffice/cells_part.h"
#include "hosts/objects/formats.h"

namespace rangewerks::hosts::libreoffice {

class Font final : public CellsPart<objects::Font> {
 public:
  Font(SessionPointer session, CellBlock cells) : CellsPart(std::move(session), std::move(cells)) {}

 protected:
  Variant GetBold() const override;
  void LetBold(bool isBold) override;
};

}  // namespace rangewerks::hosts::libreoffice
