// The late-bound DocumentProperties and DocumentProperty of the office.
#pragma once

#include "hosts/libreoffice/office_object.h"
#include "hosts/libreoffice/user_properties.h"
#include "hosts/objects/document_properties.h"

namespace rangewerks::hosts::libreoffice {

class DocumentProperties final : public OfficeObject<objects::DocumentProperties> {
 public:
  DocumentProperties(SessionPointer session, BookPointer book)
      : OfficeObject(std::move(session)), book_(std::move(book)) {}

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  void RequireAlive() const override { RequireOpen(*book_); }
  std::string BookName() const override { return book_->Name(); }
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  automation::ErrorNumber Missing() const override;
  Variant GetCount() const override;
  Variant AddProperty(const std::string& name, std::int32_t type, const Variant& value) override;
  Variant GetParent() const override;
  Variant GetApplication() const override;

 private:
  BookPointer book_;
};

/// One property. It is known by its name, so each call asks the office for it.
class DocumentProperty final : public OfficeObject<objects::DocumentProperty> {
 public:
  DocumentProperty(SessionPointer session, BookPointer book, std::string name)
      : OfficeObject(std::move(session)), book_(std::move(book)), name_(std::move(name)) {}

  void LetValue(const Variant& value) override { UserProperties(*book_).Put(name_, value); }

 protected:
  void RequireAlive() const override { RequireOpen(*book_); }
  Variant GetValue() const override { return UserProperties(*book_).Get(name_); }
  Variant GetName() const override { return name_; }
  Variant GetType() const override;
  Variant GetParent() const override;
  Variant GetApplication() const override;
  void Delete() override { UserProperties(*book_).Remove(name_); }

 private:
  BookPointer book_;
  std::string name_;
};

}  // namespace rangewerks::hosts::libreoffice
