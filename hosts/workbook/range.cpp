#include "hosts/workbook/range.h"

#include "hosts/workbook/application.h"
#include "hosts/workbook/name.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {

Range::Range(SessionPointer session, SheetPointer sheet, Area area, Elements elements)
    : ModelObject(std::move(session), area, elements), sheet_(std::move(sheet)) {}

std::shared_ptr<Range> Range::Of(SessionPointer session, const Reference& reference) {
  return std::make_shared<Range>(std::move(session), reference.sheet, reference.area);
}

std::shared_ptr<objects::Range> Range::Make(const Area& area, Elements elements) const {
  return std::make_shared<Range>(Shared(), sheet_, area, elements);
}

std::shared_ptr<objects::HostObject> Range::FindName() const {
  const NameContent content = Reference{sheet_, area_};
  for (const NamePointer& name : sheet_->book->names.All()) {
    if (name->content == content) return std::make_shared<Name>(Shared(), sheet_->book, name);
  }
  return nullptr;
}

void Range::LetName(const Variant& name) {
  DefineName(*sheet_->book, TextArgument(name), nullptr, Reference{sheet_, area_});
}

Variant Range::GetParent() const { return Worksheet::Of(Shared(), sheet_); }
Variant Range::GetApplication() const { return Application::Of(Shared()); }

bool Range::IsInFront() const {
  const Book* const book = sheet_->book;
  return Shared()->active == book && book->active == sheet_;
}

void Range::MakeSelection() {
  sheet_->selection = area_;
  sheet_->shapeSelected = false;
}

}  // namespace rangewerks::hosts::workbook
