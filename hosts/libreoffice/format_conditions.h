// The late-bound FormatConditions of cells of the office, and one FormatCondition of them.
#pragma once

#include "hosts/libreoffice/conditions.h"
#include "hosts/objects/format_conditions.h"

namespace rangewerks::hosts::libreoffice {

class FormatConditions final : public CellsPart<objects::FormatConditions> {
 public:
  FormatConditions(SessionPointer session, CellBlock cells)
      : CellsPart(std::move(session), std::move(cells)) {}
  Variant GetItem(std::int32_t index) const override;

 protected:
  std::int32_t Count() const override;
  Variant AddFormula(const std::string& formula) override;
  void Delete() override;
};

class FormatCondition final : public CellsPart<objects::FormatCondition> {
 public:
  FormatCondition(SessionPointer session, const FoundCondition& condition)
      : CellsPart(std::move(session), condition.Cells()), condition_(condition) {}

 protected:
  Variant GetType() override;
  Variant GetFormula1() override;
  Variant GetInterior() override;
  void Delete() override;

 private:
  FoundCondition condition_;
};

}  // namespace rangewerks::hosts::libreoffice
