#include "hosts/workbook/model.h"

#include <algorithm>

#include "automation/text.h"
#include "hosts/common/name_rules.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {

Book::Book(std::string bookName, const std::vector<std::string>& sheetNames)
    : name(std::move(bookName)) {
  for (const std::string& sheet : sheetNames) AddSheet(sheet);
}

std::vector<MacroModulePointer> Book::Modules() const {
  std::vector<MacroModulePointer> modules{macros.ofWorkbook};
  for (const SheetPointer& sheet : sheets) modules.push_back(sheet->module);
  modules.insert(modules.end(), macros.added.begin(), macros.added.end());
  return modules;
}

SheetPointer Book::FindSheet(std::string_view sheetName) const {
  for (const SheetPointer& sheet : sheets) {
    if (automation::EqualText(sheet->name, sheetName)) return sheet;
  }
  return nullptr;
}

void Book::RequireFreeName(const std::string& sheetName, const Sheet* except) const {
  if (const std::string fault = FaultOfSheetName(sheetName); !fault.empty()) {
    Refuse("A sheet can't be called \"" + sheetName + "\": " + fault);
  }
  const SheetPointer other = FindSheet(sheetName);
  if (other && other.get() != except) {
    Refuse("Workbook \"" + name + "\" already has a sheet \"" + other->name + "\"");
  }
}

SheetPointer Book::AddSheet(const std::string& sheetName, const SheetPointer& before) {
  RequireFreeName(sheetName, nullptr);
  auto sheet = std::make_shared<Sheet>();
  sheet->book = this;
  sheet->name = sheetName;
  sheet->module = std::make_shared<MacroModule>();
  sheet->module->name = FreeModuleName(Modules(), "Sheet");
  sheet->module->kind = ModuleKind::Document;
  sheets.insert(std::find(sheets.begin(), sheets.end(), before), sheet);
  return sheet;
}

void Book::RenameSheet(const SheetPointer& sheet, const std::string& sheetName) {
  RequireFreeName(sheetName, sheet.get());
  names.WhileRenaming(*sheet, [&] { sheet->name = sheetName; });
}

void Book::RemoveSheet(const SheetPointer& sheet) {
  if (sheets.size() == 1) Refuse("Sheet \"" + sheet->name + "\" is the only one of its workbook");
  names.RemoveOf(*sheet);
  const auto place = std::find(sheets.begin(), sheets.end(), sheet);
  const auto after = sheets.erase(place);
  if (active == sheet) active = after == sheets.end() ? sheets.back() : *after;
  sheet->deleted = true;
  sheet->module->removed = true;
  sheet->grid = {};
}

Book* Session::FindBook(std::string_view name) const {
  for (const auto& book : books) {
    if (automation::EqualText(book->name, name)) return book.get();
  }
  return nullptr;
}

Book& Session::AddBook(std::unique_ptr<Book> book) {
  if (FindBook(book->name) != nullptr) Refuse("A workbook \"" + book->name + "\" is open already");
  if (book->sheets.empty()) Refuse("Workbook \"" + book->name + "\" must have at least one sheet");
  if (!book->active) book->active = book->sheets.front();
  books.push_back(std::move(book));
  active = books.back().get();
  return *active;
}

}  // namespace rangewerks::hosts::workbook
