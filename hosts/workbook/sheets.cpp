#include "hosts/workbook/sheets.h"

#include <algorithm>

#include "hosts/workbook/application.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {
const MemberTable& Sheets::Members() const {
  static const MemberTable table =
      MemberTable::Extending<Sheets>(objects::Sheets::Members())
          .Method(4, "Add", &Sheets::Add, {Optional("Before"), Optional("After")},
                  "A new sheet, in front; ahead of the one that was, unless told otherwise.");
  return table;
}

std::shared_ptr<automation::Dispatch> Sheets::Find(const std::string& name) const {
  const SheetPointer sheet = book_->FindSheet(name);
  return sheet ? Worksheet::Of(Shared(), sheet) : nullptr;
}

objects::Slot Sheets::At(std::int32_t position) const {
  return objects::SlotIn(book_->sheets, position, [this](const SheetPointer& sheet) {
    return Worksheet::Of(Shared(), sheet);
  });
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
  return objects::WalkThrough(
      book_->sheets, [this](const SheetPointer& sheet) { return Worksheet::Of(Shared(), sheet); });
}

}  // namespace rangewerks::hosts::workbook
