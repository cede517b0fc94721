#include "automation/text.h"
#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/documents.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::hosts::libreoffice {

const MemberTable& Workbooks::Members() const {
  static const MemberTable table =
      MemberTable::For<Workbooks>("Workbooks")
          .Get(0, "Item", &Workbooks::GetItem, {"Index"}, "The workbook of that name or position.")
          .Get(1, "Count", &Workbooks::GetCount, "Number of open workbooks.")
          .Get(2, "Application", &Workbooks::GetApplication, "The application.")
          .Get(3, "Parent", &Workbooks::GetApplication, "The application.")
          .Method(4, "Add", &Workbooks::Add, {}, "A new workbook with one sheet, in front.")
          .Method(5, "Open", &Workbooks::Open, {"Filename", {"ReadOnly", false}},
                  "Opens a workbook file; in front.");
  return table;
}

Variant Workbooks::GetItem(const Variant& index) const {
  const auto& books = Office()->Books();
  if (const auto* name = index.TryGet<std::string>()) {
    for (const BookPointer& book : books) {
      if (automation::EqualText(book->Name(), *name)) return Workbook::Of(Office(), book);
    }
    FailElement("There is no open workbook \"" + *name + "\"");
  }
  const std::int32_t position = LongArgument(index);
  if (position < 1 || static_cast<std::size_t>(position) > books.size()) {
    FailElement("There is no open workbook number " + std::to_string(position) + " among " +
                std::to_string(books.size()));
  }
  return Workbook::Of(Office(), books[static_cast<std::size_t>(position) - 1]);
}

Variant Workbooks::GetCount() const { return static_cast<std::int32_t>(Office()->Books().size()); }
Variant Workbooks::GetApplication() const { return Application::Of(Office()); }
Variant Workbooks::Add() { return Workbook::Of(Office(), NewDocument(*Office(), {"Sheet1"})); }

Variant Workbooks::Open(const Variant& filename, const Variant& readOnly) {
  const bool onlyRead = ToBoolean(readOnly, automation::Locale::Current());
  return Workbook::Of(Office(),
                      OpenDocument(*Office(), TextArgument(filename), {onlyRead, onlyRead}));
}

std::unique_ptr<Enumerator> Workbooks::Walk() {
  std::vector<Variant> books;
  for (const BookPointer& book : Office()->Books()) {
    books.emplace_back(Workbook::Of(Office(), book));
  }
  return std::make_unique<automation::SnapshotEnumerator>(std::move(books));
}

}  // namespace rangewerks::hosts::libreoffice
