#include "hosts/workbook/shape.h"

#include "hosts/workbook/application.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {
Shape::Shape(SessionPointer session, SheetPointer sheet)
    : ModelObject(std::move(session)), sheet_(std::move(sheet)) {}

const MemberTable& Shape::Members() const {
  static const MemberTable table =
      MemberTable::For<Shape>("Rectangle")
          .Get(1, "Name", &Shape::GetName, "The name.")
          .Get(2, "Parent", &Shape::GetParent, "The sheet that it is drawn on.")
          .Get(3, "Application", &Shape::GetApplication, "The application.");
  return table;
}

void Shape::RequireAlive() const {
  if (sheet_->deleted) Refuse("The sheet of this shape has been deleted");
}

Variant Shape::GetName() const { return "Rectangle 1"; }
Variant Shape::GetParent() const { return Worksheet::Of(Shared(), sheet_); }
Variant Shape::GetApplication() const { return Application::Of(Shared()); }

}  // namespace rangewerks::hosts::workbook
