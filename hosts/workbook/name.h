// The late-bound Name: one defined name.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

/// Defines a name from what a caller gave: one trailing blank is dropped, "Sheet1!x" makes a name
/// of that sheet, as `scope` does for a plain one. Raises 1004 for a name that can't be.
NamePointer DefineName(Book& book, const std::string& given, SheetPointer scope,
                       NameContent content);

/// What a caller gave as a name's content: a text (see ParseContent), a Range, or a number. Raises
/// 1004 for any other object and for cells of another workbook.
NameContent ContentOf(const Book& book, const Variant& given);

class Name final : public ModelObject<> {
 public:
  Name(SessionPointer session, Book* book, NamePointer name);

  const MemberTable& Members() const override;

 protected:
  void RequireAlive() const override;

 private:
  Variant GetName() const;
  void LetName(const Variant& name);
  Variant GetRefersTo() const;
  void LetRefersTo(const Variant& content);
  Variant GetRefersToRange() const;
  Variant GetParent() const;
  Variant GetApplication() const;
  void Delete();

  Book* book_;
  NamePointer name_;
};

}  // namespace rangewerks::hosts::workbook
