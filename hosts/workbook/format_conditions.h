// The late-bound FormatConditions of a range in memory, and one FormatCondition of them.
#pragma once

#include "hosts/objects/format_conditions.h"
#include "hosts/workbook/cells_object.h"
#include "hosts/workbook/conditional_format.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {

class FormatConditions final : public CellsObject<objects::FormatConditions> {
 public:
  FormatConditions(SessionPointer session, SheetPointer sheet, Area area)
      : CellsObject(std::move(session), std::move(sheet), area) {}
  Variant GetItem(std::int32_t index) const override;

 protected:
  std::int32_t Count() const override;
  Variant AddFormula(const std::string& formula) override;
  void Delete() override { sheet_->conditionalFormats.RemoveAll(area_); }
};

class FormatCondition final : public CellsObject<objects::FormatCondition> {
 public:
  FormatCondition(SessionPointer session, SheetPointer sheet, Area area,
                  ConditionalFormatPointer format)
      : CellsObject(std::move(session), std::move(sheet), area), format_(std::move(format)) {}

 protected:
  void RequireAlive() const override;
  Variant GetType() override { return std::int32_t{excel::xlExpression}; }
  Variant GetFormula1() override { return format_->formula; }
  Variant GetInterior() override;
  void Delete() override { sheet_->conditionalFormats.Remove(area_, format_); }

 private:
  ConditionalFormatPointer format_;
};

}  // namespace rangewerks::hosts::workbook
