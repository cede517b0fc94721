// The late-bound Border: one edge of a block of cells, or the lines inside it.
#pragma once

#include <com/sun/star/table/BorderLine2.hpp>

#include "hosts/libreoffice/cells_part.h"

namespace rangewerks::hosts::libreoffice {

class Border final : public CellsPart<> {
 public:
  /// Raises 1004 for an index that isn't an edge nor an inside.
  Border(SessionPointer session, CellBlock cells, std::int32_t index);
  const MemberTable& Members() const override;

 private:
  Variant GetLineStyle() const;
  void LetLineStyle(const Variant& style);
  Variant GetWeight() const;
  void LetWeight(const Variant& weight);

  /// The line; none when it differs along the edge.
  std::optional<css::table::BorderLine2> Line() const;
  /// Raises 1004 for the inside of cells that have none.
  void Draw(const css::table::BorderLine2& line);

  std::int32_t index_;
};

}  // namespace rangewerks::hosts::libreoffice
