#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/workbook.h"
#include "hosts/libreoffice/worksheet.h"

namespace rangewerks::hosts::libreoffice {

Sheets::Sheets(SessionPointer session, BookPointer book)
    : OfficeObject(std::move(session)), book_(std::move(book)) {}

const MemberTable& Sheets::Members() const {
  static const MemberTable table =
      MemberTable::For<Sheets>("Sheets")
          .Get(0, "Item", &Sheets::GetItem, {"Index"}, "The sheet of that name or position.")
          .Get(1, "Count", &Sheets::GetCount, "Number of sheets.")
          .Get(2, "Parent", &Sheets::GetParent, "The workbook.")
          .Get(3, "Application", &Sheets::GetApplication, "The application.");
  return table;
}

Variant Sheets::GetItem(const Variant& index) const {
  const auto* name = index.TryGet<std::string>();
  const SheetPointer sheet =
      name == nullptr ? book_->SheetAt(LongArgument(index)) : book_->FindSheet(*name);
  if (!sheet) {
    FailElement("Workbook \"" + book_->Name() + "\" has no sheet \"" + *name + "\"");
  }
  return Worksheet::Of(Office(), book_, sheet);
}

Variant Sheets::GetCount() const { return book_->SheetCount(); }
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
