// The late-bound FormatConditions of cells, and one FormatCondition of them.
#pragma once

#include "hosts/libreoffice/conditions.h"

namespace rangewerks::hosts::libreoffice {

class FormatConditions final : public CellsPart<> {
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

class FormatCondition final : public CellsPart<> {
 public:
  FormatCondition(SessionPointer session, const FoundCondition& condition)
      : CellsPart(std::move(session), condition.Cells()), condition_(condition) {}
  const MemberTable& Members() const override;

 private:
  Variant GetType();
  Variant GetFormula1();
  Variant GetInterior();
  void Delete();

  FoundCondition condition_;
};

}  // namespace rangewerks::hosts::libreoffice
