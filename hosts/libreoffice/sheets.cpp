#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/workbook.h"
#include "hosts/libreoffice/worksheet.h"

namespace rangewerks::hosts::libreoffice {

std::shared_ptr<automation::Dispatch> Sheets::Find(const std::string& name) const {
  const SheetPointer sheet = book_->FindSheet(name);
  return sheet ? Worksheet::Of(Office(), book_, sheet) : nullptr;
}

objects::Slot Sheets::At(std::int32_t position) const {
  return {Worksheet::Of(Office(), book_, book_->SheetAt(position))};  // which refuses another one
}

Variant Sheets::GetParent() const { return Workbook::Of(Office(), book_); }
Variant Sheets::GetApplication() const { return Application::Of(Office()); }

std::unique_ptr<Enumerator> Sheets::Walk() {
  std::vector<Variant> sheets;
  const std::int32_t count = book_->SheetCount();
  for (std::int32_t i = 1; i <= count; ++i) {
    sheets.emplace_back(Worksheet::Of(Office(), book_, book_->SheetAt(i)));
  }
  return std::make_unique<automation::SnapshotEnumerator>(std::move(sheets));
}

}  // namespace rangewerks::hosts::libreoffice
