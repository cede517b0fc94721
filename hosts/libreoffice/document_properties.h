// The late-bound DocumentProperties and DocumentProperty: what Workbook.CustomDocumentProperties
// is.
#pragma once

#include "hosts/libreoffice/office_object.h"
#include "hosts/libreoffice/user_properties.h"

namespace rangewerks::hosts::libreoffice {

class DocumentProperties final : public OfficeObject<> {
 public:
  DocumentProperties(SessionPointer session, BookPointer book);
  const MemberTable& Members() const override;
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  void RequireAlive() const override { RequireOpen(*book_); }

 private:
  Variant GetCount() const;
  Variant GetParent() const;
  Variant GetApplication() const;
  Variant Add(const Variant& name, bool linkToContent, const Variant& type, const Variant& value);
  Variant ElementOf(const std::string& name) const;

  BookPointer book_;
};

/// One property. It is known by its name, so each call asks the office for it.
class DocumentProperty final : public OfficeObject<> {
 public:
  DocumentProperty(SessionPointer session, BookPointer book, std::string name);
  const MemberTable& Members() const override;

 protected:
  void RequireAlive() const override { RequireOpen(*book_); }

 private:
  Variant GetValue() const;
  void LetValue(const Variant& value);
  Variant GetName() const;
  Variant GetType() const;
  Variant GetLinkToContent() const;
  Variant GetParent() const;
  Variant GetApplication() const;
  void Delete();

  BookPointer book_;
  std::string name_;
};

}  // namespace rangewerks::hosts::libreoffice
