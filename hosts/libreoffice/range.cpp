#include "hosts/libreoffice/range.h"

#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "automation/text.h"
#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/defined_names.h"
#include "hosts/libreoffice/name.h"
#include "hosts/libreoffice/worksheet.h"

namespace rangewerks::hosts::libreoffice {

Range::Range(SessionPointer session, BookPointer book, SheetPointer sheet, Area area,
             Elements elements)
    : OfficeObject(std::move(session), area, elements),
      book_(std::move(book)),
      sheet_(std::move(sheet)) {}

std::shared_ptr<objects::Range> Range::Make(const Area& area, Elements elements) const {
  return std::make_shared<Range>(Office(), book_, sheet_, area, elements);
}

std::shared_ptr<objects::HostObject> Range::FindName() const {
  const std::string wanted = sheet_->Name();
  for (DefinedName& name : AllNames(*book_, nullptr)) {
    const auto reference = ReadNativeReference(name.Content());
    if (reference && reference->area == area_ && automation::EqualText(reference->sheet, wanted)) {
      return std::make_shared<Name>(Office(), book_, std::move(name));
    }
  }
  return nullptr;
}

void Range::LetName(const Variant& name) {
  DefineName(*book_, nullptr, TextArgument(name), NativeReference({sheet_->Name(), area_}));
}

Variant Range::GetParent() const { return Worksheet::Of(Office(), book_, sheet_); }
Variant Range::GetApplication() const { return Application::Of(Office()); }

bool Range::IsInFront() const {
  return Office()->HasActiveBook() && Office()->ActiveBook() == book_ &&
         book_->ActiveSheet() == sheet_;
}

void Range::MakeSelection() {
  As<css::view::XSelectionSupplier>(book_->Controller())->select(Any(sheet_->Block(area_)));
}

}  // namespace rangewerks::hosts::libreoffice
