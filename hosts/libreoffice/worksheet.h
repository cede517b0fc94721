// The late-bound Worksheet.
#pragma once

#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {

class Worksheet final : public OfficeObject<> {
 public:
  Worksheet(SessionPointer session, BookPointer book, SheetPointer sheet);
  static std::shared_ptr<Worksheet> Of(const SessionPointer& session, const BookPointer& book,
                                       const SheetPointer& sheet);
  const MemberTable& Members() const override;

 protected:
  Variant Carry(const Invocation& call) override;
  void RequireAlive() const override { RequireThere(*sheet_); }

 private:
  Variant GetName() const;
  void LetName(const Variant& name);
  Variant GetRange(const Variant& first, const Variant& second) const;
  Variant GetCells(const Variant& row, const Variant& column) const;
  Variant GetNames(const Variant& index) const;
  Variant GetIndex() const;
  Variant GetParent() const;
  Variant GetApplication() const;
  void Activate();
  void Delete();

  Area AreaOf(const Variant& cells) const;
  Area AreaOf(const std::string& nameOrAddress) const;

  BookPointer book_;
  SheetPointer sheet_;
};

}  // namespace rangewerks::hosts::libreoffice
