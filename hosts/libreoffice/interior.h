// The late-bound Interior: the fill of cells, or of a conditional format.
#pragma once

#include "hosts/libreoffice/cells_part.h"

namespace rangewerks::hosts::libreoffice {

class Interior : public CellsPart<> {
 public:
  const MemberTable& Members() const override;

 protected:
  using CellsPart::CellsPart;
  /// The fill as the office has it; none when the cells differ.
  virtual std::optional<std::int32_t> ReadFill() = 0;
  virtual void PutFill(std::int32_t fill) = 0;

 private:
  Variant GetColor();
  void LetColor(const Variant& color);
  Variant GetColorIndex();
  void LetColorIndex(const Variant& index);
};

class CellsInterior final : public Interior {
 public:
  CellsInterior(SessionPointer session, CellBlock cells)
      : Interior(std::move(session), std::move(cells)) {}

 protected:
  std::optional<std::int32_t> ReadFill() override;
  void PutFill(std::int32_t fill) override;
};

}  // namespace rangewerks::hosts::libreoffice
