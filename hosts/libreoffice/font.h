// The late-bound Font of cells.
#pragma once

#include "hosts/libreoffice/cells_part.h"

namespace rangewerks::hosts::libreoffice {

class Font final : public CellsPart<> {
 public:
  Font(SessionPointer session, CellBlock cells) : CellsPart(std::move(session), std::move(cells)) {}
  const MemberTable& Members() const override;

 private:
  Variant GetBold() const;
  void LetBold(bool isBold);
};

}  // namespace rangewerks::hosts::libreoffice
