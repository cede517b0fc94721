// The late-bound Borders and Border: the lines around and between the cells of a range in memory.
#pragma once

#include "hosts/objects/formats.h"
#include "hosts/workbook/cells_object.h"

namespace rangewerks::hosts::workbook {

class Borders final : public CellsObject<objects::Borders> {
 public:
  Borders(SessionPointer session, SheetPointer sheet, Area area)
      : CellsObject(std::move(session), std::move(sheet), area) {}
  Variant GetItem(std::int32_t index) const override;
};

/// One edge, or the lines inside in one direction.
class Border final : public CellsObject<objects::Border> {
 public:
  Border(SessionPointer session, SheetPointer sheet, Area area, std::int32_t index);

 protected:
  Variant GetLineStyle() const override;
  void PutLineStyle(std::int32_t style) override;
  Variant GetWeight() const override;
  void PutWeight(std::int32_t weight) override;

 private:
  template <class Read>
  Variant Common(Read read) const;
  /// Raises 1004 for inside lines where there is no inside.
  template <class Change>
  void Draw(Change change);

  std::int32_t index_;
};

}  // namespace rangewerks::hosts::workbook
