#include "hosts/workbook/name.h"

#include "hosts/common/name_rules.h"
#include "hosts/workbook/application.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/range.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {
namespace {

void RequireGoodName(const std::string& name) {
  if (const std::string fault = FaultOfName(name); !fault.empty()) {
    Refuse("\"" + name + "\" can't be a name: " + fault);
  }
}

}  // namespace

NameContent ContentOf(const Book& book, const Variant& given) {
  if (!given.IsObject()) {
    if (given.IsString()) return ParseContent(book, *given.TryGet<std::string>());
    return "=" + ToString(given, automation::Locale());
  }
  const auto range = given.AsObject().As<Range>();
  if (!range) Refuse("A name can't refer to an object of the type " + given.TypeName());
  if (range->OnSheet()->book != &book) {
    Refuse("A name of workbook \"" + book.name + "\" can't refer to cells of workbook \"" +
           range->OnSheet()->book->name + "\"");
  }
  return Reference{range->OnSheet(), range->Cells()};
}

NamePointer DefineName(Book& book, const std::string& given, SheetPointer scope,
                       NameContent content) {
  SheetAndRest parts = SplitSheet(WithoutTrailingBlank(given));
  if (parts.hasSheet) {
    scope = book.FindSheet(parts.sheet);
    if (!scope) Refuse("There is no sheet \"" + parts.sheet + "\" for the name \"" + given + "\"");
  }
  RequireGoodName(parts.rest);
  return book.names.Define(std::move(parts.rest), std::move(scope), std::move(content));
}

void Name::RequireAlive() const {
  if (name_->deleted) Refuse("The name \"" + name_->name + "\" has been deleted");
}

bool Name::IsOfSheet(const std::string& sheet) {
  return name_->scope && book_->FindSheet(sheet) == name_->scope;
}

void Name::Rename(const std::string& text, const std::string& given) {
  RequireGoodName(text);
  const NamePointer other =
      name_->scope ? book_->names.FindOf(*name_->scope, text) : book_->names.Find(text);
  if (other && other != name_) {
    Refuse("The name \"" + name_->FullName() + "\" can't become \"" + given +
           "\": there is a name of that text");
  }
  book_->names.Rename(name_, text);
}

void Name::LetRefersTo(const Variant& content) { name_->content = ContentOf(*book_, content); }

std::shared_ptr<objects::Range> Name::FindCells() {
  const Reference* const cells = name_->Cells();
  return cells == nullptr ? nullptr : Range::Of(Shared(), *cells);
}

Variant Name::GetParent() {
  if (name_->scope) return Worksheet::Of(Shared(), name_->scope);
  return Workbook::Of(Shared(), book_);
}

Variant Name::GetApplication() { return Application::Of(Shared()); }

}  // namespace rangewerks::hosts::workbook
