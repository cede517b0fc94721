// The late-bound Name: one defined name.
#pragma once

#include "hosts/objects/name.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

/// Defines a name from what a caller gave: one trailing blank is dropped, "Sheet1!x" makes a name
/// of that sheet, as `scope` does for a plain one. Raises 1004 for a name that can't be.
NamePointer DefineName(Book& book, const std::string& given, SheetPointer scope,
                       NameContent content);

/// What a caller gave as a name's content: a text (see ParseContent), a Range, or a number. Raises
/// 1004 for any other object and for cells of another workbook.
NameContent ContentOf(const Book& book, const Variant& given);

class Name final : public ModelObject<objects::Name> {
 public:
  Name(SessionPointer session, Book* book, NamePointer name)
      : ModelObject(std::move(session)), book_(book), name_(std::move(name)) {}

 protected:
  void RequireAlive() const override;

  std::string FullText() override { return name_->FullName(); }
  bool IsOfSheet(const std::string& sheet) override;
  void Rename(const std::string& text, const std::string& given) override;
  std::string RefersTo() override { return ContentText(name_->content); }
  void LetRefersTo(const Variant& content) override;
  std::shared_ptr<objects::Range> FindCells() override;
  Variant GetParent() override;
  Variant GetApplication() override;
  void Delete() override { book_->names.Remove(name_); }

 private:
  Book* book_;
  NamePointer name_;
};

}  // namespace rangewerks::hosts::workbook
