#include "hosts/workbook/sheets.h"

#include <algorithm>

#include "hosts/workbook/application.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {
Sheets::Sheets(SessionPointer session, Book* book) : ModelObject(std::move(session)), book_(book) {}

const MemberTable& Sheets::Members() const {
  static const MemberTable table =
      MemberTable::For<Sheets>("Sheets")
          .Get(0, "Item", &Sheets::GetItem, {"Index"}, "The sheet of that name or position.")
          .Get(1, "Count", &Sheets::GetCount, "Number of sheets.")
          .Get(2, "Parent", &Sheets::GetParent, "The workbook.")
          .Get(3, "Application", &Sheets::GetApplication, "The application.")
          .Method(4, "Add", &Sheets::Add, {Optional("Before"), Optional("After")},
                  "A new sheet, in front; ahead of the one that was, unless told otherwise.");
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

SheetPointer Sheets::SheetArgument(const Variant& value) const {
  const auto sheet = value.IsObject() ? value.AsObject().As<Worksheet>() : nullptr;
  if (!sheet || sheet->Data()->book != book_ || sheet->Data()->deleted) {
    Refuse("A sheet is added before or after a sheet of workbook \"" + book_->name +
           "\", not a value of the type " + value.TypeName() +
           (sheet ? " that isn't one of its" : ""));
  }
  return sheet->Data();
}

Variant Sheets::Add(const Variant& before, const Variant& after) {
  if (!before.IsMissing() && !after.IsMissing()) {
    Refuse("A sheet is added before another one or after it, not both");
  }
  SheetPointer follower = book_->active;
  if (!before.IsMissing()) follower = SheetArgument(before);
  auto& sheets = book_->sheets;
  if (!after.IsMissing()) {
    const auto next = std::find(sheets.begin(), sheets.end(), SheetArgument(after)) + 1;
    follower = next == sheets.end() ? nullptr : *next;
  }
  std::size_t number = sheets.size() + 1;
  while (book_->FindSheet("Sheet" + std::to_string(number))) ++number;
  book_->active = book_->AddSheet("Sheet" + std::to_string(number), follower);
  return Worksheet::Of(Shared(), book_->active);
}

std::unique_ptr<Enumerator> Sheets::Walk() {
  std::vector<Variant> sheets;
  for (const SheetPointer& sheet : book_->sheets)
    sheets.emplace_back(Worksheet::Of(Shared(), sheet));
  return std::make_unique<automation::SnapshotEnumerator>(std::move(sheets));
}

}  // namespace rangewerks::hosts::workbook
