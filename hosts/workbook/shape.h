// The late-bound drawn rectangle: something to select that isn't cells.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Shape final : public ModelObject<> {
 public:
  Shape(SessionPointer session, SheetPointer sheet);

  const MemberTable& Members() const override;

 protected:
  void RequireAlive() const override;

 private:
  Variant GetName() const;
  Variant GetParent() const;
  Variant GetApplication() const;

  SheetPointer sheet_;
};

}  // namespace rangewerks::hosts::workbook
