// The late-bound Names: the defined names of a workbook, or of one of its sheets.
#pragma once

#include "hosts/libreoffice/defined_names.h"
#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {

class Names final : public OfficeObject<> {
 public:
  /// With no sheet all names of the workbook, those of its sheets among them.
  Names(SessionPointer session, BookPointer book, SheetPointer sheet);
  const MemberTable& Members() const override;
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  void RequireAlive() const override;

 private:
  Variant GetCount() const;
  Variant Add(const Variant& name, const Variant& refersTo);
  Variant GetParent() const;
  Variant GetApplication() const;

  BookPointer book_;
  SheetPointer sheet_;
};

/// What a caller gives as the content of a name, a text or a range, in the office's notation.
std::string ContentArgument(Book& book, const Variant& given);

}  // namespace rangewerks::hosts::libreoffice
