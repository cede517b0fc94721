// What the cells of a Range hold, how they are named, and their being selected.
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "automation/conversions.h"
#include "automation/text.h"
#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/cell_reading.h"
#include "hosts/libreoffice/cell_writing.h"
#include "hosts/libreoffice/defined_names.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/name.h"
#include "hosts/libreoffice/range.h"
#include "hosts/libreoffice/worksheet.h"

namespace rangewerks::hosts::libreoffice {
namespace {

/// An object stands for the value of its default member.
Variant PlainValue(const Variant& value) {
  if (!value.IsObject()) return value;
  return PlainValue(value.AsObject().Get(automation::Member::Default()));
}

}  // namespace

Variant Range::GetValue() const { return ReadValue(*sheet_, area_); }

void Range::LetValue(const Variant& value) {
  WriteValue(*sheet_, area_, PlainValue(value), Office()->OfficeLocale());
}

Variant Range::GetFormula() const { return ReadFormula(*sheet_, area_); }

void Range::LetFormula(const Variant& value) {
  const automation::Locale english;
  WriteValue(*sheet_, area_, PlainValue(value), english);
}

Variant Range::GetHasFormula() const { return ReadHasFormula(*sheet_, area_); }

void Range::ClearContents() { ClearCells(*sheet_, area_); }

// --- names, sheet, selection ---------------------------------------------------------------------

std::string Range::Place() const {
  return QuotedSheetName(sheet_->Name()) + "!" + AddressOf(area_);
}

Variant Range::GetName() const {
  const std::string wanted = sheet_->Name();
  for (DefinedName& name : AllNames(*book_, nullptr)) {
    const auto reference = ReadNativeReference(name.Content());
    if (reference && reference->area == area_ && automation::EqualText(reference->sheet, wanted)) {
      return std::make_shared<Name>(Office(), book_, std::move(name));
    }
  }
  Fail("No name stands for " + Place());
}

void Range::LetName(const Variant& name) {
  DefineName(*book_, nullptr, TextArgument(name), NativeReference({sheet_->Name(), area_}));
}

Variant Range::GetParent() const { return Worksheet::Of(Office(), book_, sheet_); }
Variant Range::GetApplication() const { return Application::Of(Office()); }

void Range::Select() {
  const bool isInFront = Office()->HasActiveBook() && Office()->ActiveBook() == book_ &&
                         book_->ActiveSheet() == sheet_;
  if (!isInFront) Fail(Place() + " can't be selected: its sheet isn't the active one");
  As<css::view::XSelectionSupplier>(book_->Controller())->select(Any(sheet_->Block(area_)));
}

}  // namespace rangewerks::hosts::libreoffice
