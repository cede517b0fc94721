// The late-bound Borders and Border: the lines around and between the cells of a range.
#pragma once

#include "hosts/workbook/cells_object.h"

namespace rangewerks::hosts::workbook {

class Borders final : public CellsObject<> {
 public:
  Borders(SessionPointer session, SheetPointer sheet, Area area);
  const MemberTable& Members() const override;
  Variant GetItem(std::int32_t index) const;
};

/// One edge, or the lines inside in one direction.
class Border final : public CellsObject<> {
 public:
  Border(SessionPointer session, SheetPointer sheet, Area area, std::int32_t index);
  const MemberTable& Members() const override;

 private:
  Variant GetLineStyle() const;
  void LetLineStyle(std::int32_t style);
  Variant GetWeight() const;
  void LetWeight(std::int32_t weight);

  template <class Read>
  Variant Common(Read read) const;
  /// Raises 1004 for inside lines where there is no inside.
  template <class Change>
  void Draw(Change change);

  std::int32_t index_;
};

}  // namespace rangewerks::hosts::workbook
