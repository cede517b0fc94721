// The base of the late-bound objects that stand for one thing about the cells of a range.
#pragma once

#include <optional>
#include <string>

#include "hosts/common/name_rules.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

template <class Face = objects::HostObject>
class CellsObject : public ModelObject<Face> {
 protected:
  template <class... Arguments>
  CellsObject(SessionPointer session, SheetPointer sheet, Area area, Arguments&&... arguments)
      : ModelObject<Face>(std::move(session), std::forward<Arguments>(arguments)...),
        sheet_(std::move(sheet)),
        area_(area) {}

  /// Raises 1004 when the sheet has been deleted.
  void RequireAlive() const override { RequireSheetOfRange(*sheet_); }
  /// The cells with their sheet, for messages: "'Data Sheet'!$C$3".
  std::string Place() const { return PlaceOf(sheet_->name, area_); }

  SheetPointer sheet_;
  Area area_;
};

/// What the cells have in common, and null when they differ.
template <class T>
Variant ValueOrNull(const std::optional<T>& common) {
  return common ? Variant(*common) : Variant(automation::Null());
}

}  // namespace rangewerks::hosts::workbook
