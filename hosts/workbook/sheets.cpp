#include "hosts/workbook/sheets.h"

#include "hosts/workbook/application.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {
namespace {

const automation::Member kType{"Sheets"};

}  // namespace

Sheets::Sheets(SessionPointer session, Book* book)
    : ModelObject(std::move(session), kType), book_(book) {}

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
  if (const auto* name = index.TryGet<std::string>()) {
    const SheetPointer sheet = book_->FindSheet(*name);
    if (!sheet) {
      RefuseElement("Workbook \"" + book_->name + "\" has no sheet \"" + *name + "\"");
    }
    return Worksheet::Of(Shared(), sheet);
  }
  const std::int32_t position = LongArgument(index);
  if (position < 1 || static_cast<std::size_t>(position) > book_->sheets.size()) {
    RefuseElement("Workbook \"" + book_->name + "\" has no sheet number " +
                  std::to_string(position) + " among its " + std::to_string(book_->sheets.size()));
  }
  return Worksheet::Of(Shared(), book_->sheets[static_cast<std::size_t>(position) - 1]);
}

Variant Sheets::GetCount() const { return static_cast<std::int32_t>(book_->sheets.size()); }
Variant Sheets::GetParent() const { return Workbook::Of(Shared(), book_); }
Variant Sheets::GetApplication() const { return Application::Of(Shared()); }

std::unique_ptr<Enumerator> Sheets::Walk() {
  std::vector<Variant> sheets;
  for (const SheetPointer& sheet : book_->sheets)
    sheets.emplace_back(Worksheet::Of(Shared(), sheet));
  return std::make_unique<automation::SnapshotEnumerator>(std::move(sheets));
}

}  // namespace rangewerks::hosts::workbook
