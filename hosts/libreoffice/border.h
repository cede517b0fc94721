// The late-bound Borders of cells of the office, and Border: one edge, or the lines inside.
#pragma once

#include <com/sun/star/table/BorderLine2.hpp>

#include "hosts/libreoffice/cells_part.h"
#include "hosts/objects/formats.h"

namespace rangewerks::hosts::libreoffice {

class Borders final : public CellsPart<objects::Borders> {
 public:
  Borders(SessionPointer session, CellBlock cells)
      : CellsPart(std::move(session), std::move(cells)) {}
  Variant GetItem(std::int32_t index) const override;
};

class Border final : public CellsPart<objects::Border> {
 public:
  /// Raises 1004 for an index that isn't an edge nor an inside.
  Border(SessionPointer session, CellBlock cells, std::int32_t index);

 protected:
  Variant GetLineStyle() const override;
  void PutLineStyle(std::int32_t style) override;
  Variant GetWeight() const override;
  void PutWeight(std::int32_t weight) override;

 private:
  /// The line; none when it differs along the edge.
  std::optional<css::table::BorderLine2> Line() const;
  /// Raises 1004 for the inside of cells that have none.
  void Draw(const css::table::BorderLine2& line);

  std::int32_t index_;
};

}  // namespace rangewerks::hosts::libreoffice
