// What the cells of a Range hold: values and formulas.
#include "hosts/libreoffice/cell_reading.h"
#include "hosts/libreoffice/cell_writing.h"
#include "hosts/libreoffice/range.h"

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

}  // namespace rangewerks::hosts::libreoffice
