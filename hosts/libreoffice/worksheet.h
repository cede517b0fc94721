// The late-bound Worksheet of the office.
#pragma once

#include "hosts/libreoffice/office_object.h"
#include "hosts/objects/worksheet.h"

namespace rangewerks::hosts::libreoffice {

class Worksheet final : public OfficeObject<objects::Worksheet> {
 public:
  Worksheet(SessionPointer session, BookPointer book, SheetPointer sheet)
      : OfficeObject(std::move(session)), book_(std::move(book)), sheet_(std::move(sheet)) {}
  static std::shared_ptr<Worksheet> Of(const SessionPointer& session, const BookPointer& book,
                                       const SheetPointer& sheet);

 protected:
  void RequireAlive() const override { RequireThere(*sheet_); }

  std::string SheetName() const override { return sheet_->Name(); }
  const void* Sheet() const noexcept override { return sheet_.get(); }
  std::shared_ptr<objects::Range> Make(const Area& area) const override;
  std::optional<Reference> FindName(const std::string& name, bool hasSheet) const override;

  void LetName(const std::string& name) override;
  Variant GetIndex() const override { return sheet_->Index() + 1; }
  std::shared_ptr<objects::Collection> Names() const override;
  Variant GetParent() const override;
  Variant GetApplication() const override;
  void Activate() override;
  void Delete() override { book_->Remove(sheet_); }

 private:
  BookPointer book_;
  SheetPointer sheet_;
};

}  // namespace rangewerks::hosts::libreoffice
