// The late-bound Interior: the fill of cells in memory, always or while a condition holds.
#pragma once

#include "hosts/objects/formats.h"
#include "hosts/workbook/cells_object.h"
#include "hosts/workbook/conditional_format.h"

namespace rangewerks::hosts::workbook {

/// The fill that the cells themselves have.
class CellFill final : public CellsObject<objects::Interior> {
 public:
  CellFill(SessionPointer session, SheetPointer sheet, Area area)
      : CellsObject(std::move(session), std::move(sheet), area) {}

 protected:
  std::optional<Color> Fill() override;
  void Paint(Color fill) override;
};

/// The fill that cells have while a condition holds.
class ConditionFill final : public CellsObject<objects::Interior> {
 public:
  ConditionFill(SessionPointer session, SheetPointer sheet, Area area,
                ConditionalFormatPointer condition)
      : CellsObject(std::move(session), std::move(sheet), area), condition_(std::move(condition)) {}

 protected:
  void RequireAlive() const override;
  std::optional<Color> Fill() override { return condition_->fill; }
  void Paint(Color fill) override { condition_->fill = fill; }

 private:
  ConditionalFormatPointer condition_;
};

}  // namespace rangewerks::hosts::workbook
