// The late-bound FormatConditions of cells, and one FormatCondition of them.
#pragma once

#include "hosts/libreoffice/conditions.h"

namespace rangewerks::hosts::libreoffice {

class FormatConditions final : public CellsPart {
 public:
  FormatConditions(SessionPointer session, CellBlock cells)
      : CellsPart(std::move(session), std::move(cells)) {}
  const MemberTable& Members() const override;
  Variant GetItem(const Variant& index) const;

 private:
  Variant GetCount() const;
  Variant Add(const Variant& type, const Variant& comparison, const Variant& formula1);
  void Delete();
};

/// A condition is known by its position, as the office makes new objects with every change.
class FormatCondition final : public CellsPart {
 public:
  FormatCondition(SessionPointer session, CellBlock cells, std::int32_t position)
      : CellsPart(std::move(session), std::move(cells)), position_(position) {}
  const MemberTable& Members() const override;

 private:
  Variant GetType() const;
  Variant GetFormula1() const;
  Variant GetInterior() const;
  void Delete();

  std::int32_t position_;
};

}  // namespace rangewerks::hosts::libreoffice
