// The late-bound FormatConditions of a range, and one FormatCondition of them.
#pragma once

#include <vector>

#include "hosts/workbook/cells_object.h"
#include "hosts/workbook/conditional_format.h"

namespace rangewerks::hosts::workbook {

/// The conditional formats that any of the cells has, in the order in which they were added.
class FormatConditions final : public CellsObject<> {
 public:
  FormatConditions(SessionPointer session, SheetPointer sheet, Area area);
  const MemberTable& Members() const override;
  Variant GetItem(std::int32_t index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant Add(std::int32_t type, const Variant& comparison, const Variant& formula);
  Variant GetCount() const;
  void Delete();
  Variant Face(const ConditionalFormatPointer& format) const;
};

class FormatCondition final : public CellsObject<> {
 public:
  FormatCondition(SessionPointer session, SheetPointer sheet, Area area,
                  ConditionalFormatPointer format);
  const MemberTable& Members() const override;

 protected:
  void RequireAlive() const override;

 private:
  Variant GetType() const;
  Variant GetFormula1() const;
  Variant GetInterior() const;
  void Delete();

  ConditionalFormatPointer format_;
};

}  // namespace rangewerks::hosts::workbook
