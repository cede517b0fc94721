// The late-bound Interior: the fill of cells of the office, or of a conditional format.
#pragma once

#include "hosts/libreoffice/cells_part.h"
#include "hosts/objects/formats.h"

namespace rangewerks::hosts::libreoffice {

/// The office keeps colours as 0xRRGGBB.
class Interior : public CellsPart<objects::Interior> {
 protected:
  using CellsPart::CellsPart;

  std::optional<std::int32_t> Fill() final;
  void Paint(std::int32_t fill) final;

  /// The fill as the office has it; none when the cells differ.
  virtual std::optional<std::int32_t> ReadFill() = 0;
  virtual void PutFill(std::int32_t fill) = 0;
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
