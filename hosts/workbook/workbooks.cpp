#include "hosts/workbook/workbooks.h"

#include "hosts/workbook/application.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/workbook_file.h"

namespace rangewerks::hosts::workbook {

const MemberTable& Workbooks::Members() const {
  static const MemberTable table =
      MemberTable::Extending<Workbooks>(objects::Workbooks::Members())
          .Method(5, "Open", &Workbooks::Open, {"Filename"}, "Reads a workbook file; in front.");
  return table;
}

std::shared_ptr<automation::Dispatch> Workbooks::Find(const std::string& name) const {
  Book* const book = Shared()->FindBook(name);
  return book == nullptr ? nullptr : Workbook::Of(Shared(), book);
}

objects::Slot Workbooks::At(std::int32_t position) const {
  return objects::SlotIn(Shared()->books, position, [this](const std::unique_ptr<Book>& book) {
    return Workbook::Of(Shared(), book.get());
  });
}

Variant Workbooks::GetCount() const { return static_cast<std::int32_t>(Shared()->books.size()); }
Variant Workbooks::GetApplication() const { return Application::Of(Shared()); }

Variant Workbooks::Add() {
  Session& session = *Shared();
  std::size_t number = session.books.size() + 1;
  while (session.FindBook("Book" + std::to_string(number)) != nullptr) ++number;
  auto book =
      std::make_unique<Book>("Book" + std::to_string(number), std::vector<std::string>{"Sheet1"});
  return Workbook::Of(Shared(), &session.AddBook(std::move(book)));
}

Variant Workbooks::Open(const std::string& path) {
  return Workbook::Of(Shared(), &ReadWorkbookFile(*Shared(), path));
}

std::unique_ptr<Enumerator> Workbooks::Walk() {
  return objects::WalkThrough(Shared()->books, [this](const std::unique_ptr<Book>& book) {
    return Workbook::Of(Shared(), book.get());
  });
}

}  // namespace rangewerks::hosts::workbook
