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

Name::Name(SessionPointer session, Book* book, NamePointer name)
    : ModelObject(std::move(session)), book_(book), name_(std::move(name)) {}

const MemberTable& Name::Members() const {
  static const MemberTable table =
      MemberTable::For<Name>("Name")
          .Get(0, "RefersTo", &Name::GetRefersTo, "The reference or formula, as text with \"=\".")
          .Let(0, "RefersTo", &Name::LetRefersTo, "Gives the name another content.")
          .Get(1, "Name", &Name::GetName, "The full text.")
          .Let(1, "Name", &Name::LetName, "Renames in place.")
          .Get(2, "RefersToRange", &Name::GetRefersToRange, "The cells.")
          .Method(3, "Delete", &Name::Delete, {}, "Removes the name.")
          .Get(4, "Parent", &Name::GetParent, "The workbook, or the sheet that the name is of.")
          .Get(5, "Application", &Name::GetApplication, "The application.");
  return table;
}

void Name::RequireAlive() const {
  if (name_->deleted) Refuse("The name \"" + name_->name + "\" has been deleted");
}

Variant Name::GetName() const { return name_->FullName(); }

void Name::LetName(const Variant& name) {
  const std::string given = TextArgument(name);
  const SheetAndRest parts = SplitSheet(WithoutTrailingBlank(given));
  const bool ownSheet =
      !parts.hasSheet || (name_->scope && book_->FindSheet(parts.sheet) == name_->scope);
  if (!ownSheet) {
    Refuse("The name \"" + name_->FullName() + "\" can't become \"" + given +
           "\": a name can't move to another sheet");
  }
  RequireGoodName(parts.rest);
  const NamePointer other =
      name_->scope ? book_->names.FindOf(*name_->scope, parts.rest) : book_->names.Find(parts.rest);
  if (other && other != name_) {
    Refuse("The name \"" + name_->FullName() + "\" can't become \"" + given +
           "\": there is a name of that text");
  }
  book_->names.Rename(name_, parts.rest);
}

Variant Name::GetRefersTo() const { return ContentText(name_->content); }

void Name::LetRefersTo(const Variant& content) { name_->content = ContentOf(*book_, content); }

Variant Name::GetRefersToRange() const {
  const Reference* const cells = name_->Cells();
  if (cells == nullptr) {
    Refuse("The name \"" + name_->FullName() + "\" refers to no cells but to " +
           ContentText(name_->content));
  }
  return Range::Of(Shared(), *cells);
}

Variant Name::GetParent() const {
  if (name_->scope) return Worksheet::Of(Shared(), name_->scope);
  return Workbook::Of(Shared(), book_);
}

Variant Name::GetApplication() const { return Application::Of(Shared()); }

void Name::Delete() { book_->names.Remove(name_); }

}  // namespace rangewerks::hosts::workbook
