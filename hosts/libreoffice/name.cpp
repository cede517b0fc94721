#include "hosts/libreoffice/name.h"

#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/names.h"
#include "hosts/libreoffice/range.h"
#include "hosts/libreoffice/workbook.h"
#include "hosts/libreoffice/worksheet.h"

namespace rangewerks::hosts::libreoffice {

Name::Name(SessionPointer session, BookPointer book, DefinedName name)
    : OfficeObject(std::move(session)), book_(std::move(book)), name_(std::move(name)) {}

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
  RequireOpen(*book_);
  if (name_.Scope()) RequireThere(*name_.Scope());
}

Variant Name::GetName() { return name_.FullText(); }

void Name::LetName(const Variant& name) {
  const std::string given = TextArgument(name);
  const auto parts = SplitSheet(WithoutTrailingBlank(given));
  const bool ownSheet =
      !parts.hasSheet || (name_.Scope() && book_->FindSheet(parts.sheet) == name_.Scope());
  if (!ownSheet) {
    Fail("The name \"" + name_.FullText() + "\" can't become \"" + given +
         "\": a name can't move to another sheet");
  }
  name_.Rename(parts.rest);
}

Variant Name::GetRefersTo() { return name_.RefersTo(); }
void Name::LetRefersTo(const Variant& content) {
  name_.PutContent(ContentArgument(*book_, content));
}

Variant Name::GetRefersToRange() {
  const auto cells = name_.Cells();
  if (!cells) {
    Fail("The name \"" + name_.FullText() + "\" refers to no cells but to " + name_.RefersTo());
  }
  return std::make_shared<Range>(Office(), book_, cells->sheet, cells->area);
}

Variant Name::GetParent() {
  if (name_.Scope()) return Worksheet::Of(Office(), book_, name_.Scope());
  return Workbook::Of(Office(), book_);
}

Variant Name::GetApplication() { return Application::Of(Office()); }

void Name::Delete() { name_.Delete(); }

}  // namespace rangewerks::hosts::libreoffice
