// The base of what a Range has beside its cells' content: fill, font, lines, validation,
// conditional formats.
#pragma once

#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {

/// Cells of one sheet.
struct CellBlock {
  BookPointer book;
  SheetPointer sheet;
  Area area;
};

template <class Face = objects::HostObject>
class CellsPart : public OfficeObject<Face> {
 protected:
  template <class... Arguments>
  CellsPart(SessionPointer session, CellBlock cells, Arguments&&... arguments)
      : OfficeObject<Face>(std::move(session), std::forward<Arguments>(arguments)...),
        cells_(std::move(cells)) {}

  void RequireAlive() const override { RequireThere(*cells_.sheet); }
  const CellBlock& Cells() const noexcept { return cells_; }
  Sheet& OnSheet() const noexcept { return *cells_.sheet; }
  const Area& InArea() const noexcept { return cells_.area; }

 private:
  CellBlock cells_;
};

}  // namespace rangewerks::hosts::libreoffice
