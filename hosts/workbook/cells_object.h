// The base of the late-bound objects that stand for cells or for one thing about them.
#pragma once

#include <optional>
#include <string>

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class CellsObject : public ModelObject {
 public:
  const SheetPointer& OnSheet() const noexcept { return sheet_; }
  const Area& Cells() const noexcept { return area_; }

 protected:
  CellsObject(SessionPointer session, automation::Member type, SheetPointer sheet, Area area)
      : ModelObject(std::move(session), type), sheet_(std::move(sheet)), area_(area) {}

  /// Raises 1004 when the sheet has been deleted.
  void RequireAlive() const override;
  /// The cells with their sheet, for messages: "'Data Sheet'!$C$3".
  std::string Place() const;

  SheetPointer sheet_;
  Area area_;
};

/// What the cells have in common, and null when they differ.
template <class T>
Variant ValueOrNull(const std::optional<T>& common) {
  return common ? Variant(*common) : Variant(automation::Null());
}

}  // namespace rangewerks::hosts::workbook
