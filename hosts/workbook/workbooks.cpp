#include "hosts/workbook/workbooks.h"

#include "hosts/workbook/application.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/workbook_file.h"

namespace rangewerks::hosts::workbook {
Workbooks::Workbooks(SessionPointer session) : ModelObject(std::move(session)) {}

const MemberTable& Workbooks::Members() const {
  static const MemberTable table =
      MemberTable::For<Workbooks>("Workbooks")
          .Get(0, "Item", &Workbooks::GetItem, {"Index"}, "The workbook of that name or position.")
          .Get(1, "Count", &Workbooks::GetCount, "Number of open workbooks.")
          .Get(2, "Application", &Workbooks::GetApplication, "The application.")
          .Get(3, "Parent", &Workbooks::GetApplication, "The application.")
          .Method(4, "Add", &Workbooks::Add, {}, "A new workbook with one sheet, in front.")
          .Method(5, "Open", &Workbooks::Open, {"Filename"}, "Reads a workbook file; in front.");
  return table;
}

Variant Workbooks::GetItem(const Variant& index) const {
  if (const auto* name = index.TryGet<std::string>()) {
    Book* const book = Shared()->FindBook(*name);
    if (book == nullptr) RefuseElement("There is no open workbook \"" + *name + "\"");
    return Workbook::Of(Shared(), book);
  }
  const auto& books = Shared()->books;
  const std::int32_t position = LongArgument(index);
  if (position < 1 || static_cast<std::size_t>(position) > books.size()) {
    RefuseElement("There is no open workbook number " + std::to_string(position) + " among " +
                  std::to_string(books.size()));
  }
  return Workbook::Of(Shared(), books[static_cast<std::size_t>(position) - 1].get());
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

Variant Workbooks::Open(const Variant& path) {
  return Workbook::Of(Shared(), &ReadWorkbookFile(*Shared(), TextArgument(path)));
}

std::unique_ptr<Enumerator> Workbooks::Walk() {
  std::vector<Variant> books;
  for (const auto& book : Shared()->books) books.emplace_back(Workbook::Of(Shared(), book.get()));
  return std::make_unique<automation::SnapshotEnumerator>(std::move(books));
}

}  // namespace rangewerks::hosts::workbook
