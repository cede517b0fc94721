// The late-bound Interior: the fill of cells, always or while a condition holds.
#pragma once

#include <optional>

#include "hosts/workbook/cells_object.h"
#include "hosts/workbook/conditional_format.h"

namespace rangewerks::hosts::workbook {

class Interior : public CellsObject<> {
 public:
  const MemberTable& Members() const final;

 protected:
  Interior(SessionPointer session, SheetPointer sheet, Area area);

 private:
  /// None when the cells differ.
  virtual std::optional<Color> Fill() const = 0;
  virtual void Paint(Color fill) = 0;

  Variant GetColor() const;
  void LetColor(std::int32_t color);
  Variant GetColorIndex() const;
  void LetColorIndex(std::int32_t index);
};

/// The fill that the cells themselves have.
class CellFill final : public Interior {
 public:
  CellFill(SessionPointer session, SheetPointer sheet, Area area)
      : Interior(std::move(session), std::move(sheet), area) {}

 private:
  std::optional<Color> Fill() const override;
  void Paint(Color fill) override;
};

/// The fill that cells have while a condition holds.
class ConditionFill final : public Interior {
 public:
  ConditionFill(SessionPointer session, SheetPointer sheet, Area area,
                ConditionalFormatPointer condition)
      : Interior(std::move(session), std::move(sheet), area), condition_(std::move(condition)) {}

 protected:
  void RequireAlive() const override;

 private:
  std::optional<Color> Fill() const override { return condition_->fill; }
  void Paint(Color fill) override { condition_->fill = fill; }

  ConditionalFormatPointer condition_;
};

}  // namespace rangewerks::hosts::workbook
