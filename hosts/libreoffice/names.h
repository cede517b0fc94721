// The late-bound Names of the office.
#pragma once

#include "hosts/libreoffice/defined_names.h"
#include "hosts/libreoffice/office_object.h"
#include "hosts/objects/name.h"

namespace rangewerks::hosts::libreoffice {

class Names final : public OfficeObject<objects::Names> {
 public:
  /// With no sheet all names of the workbook, those of its sheets among them.
  Names(SessionPointer session, BookPointer book, SheetPointer sheet)
      : OfficeObject(std::move(session)), book_(std::move(book)), sheet_(std::move(sheet)) {}

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  void RequireAlive() const override;
  std::string BookName() const override { return book_->Name(); }
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override;
  Variant Add(const std::string& name, const Variant& refersTo) override;
  Variant GetParent() const override;
  Variant GetApplication() const override;

 private:
  BookPointer book_;
  SheetPointer sheet_;
};

/// What a caller gives as the content of a name, a text or a range, in the office's notation.
std::string ContentArgument(Book& book, const Variant& given);

}  // namespace rangewerks::hosts::libreoffice
