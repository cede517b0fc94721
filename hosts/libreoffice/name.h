// The late-bound Name: one defined name.
#pragma once

#include "hosts/libreoffice/defined_names.h"
#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {

class Name final : public OfficeObject<> {
 public:
  Name(SessionPointer session, BookPointer book, DefinedName name);
  const MemberTable& Members() const override;

 protected:
  void RequireAlive() const override;

 private:
  Variant GetName();
  void LetName(const Variant& name);
  Variant GetRefersTo();
  void LetRefersTo(const Variant& content);
  Variant GetRefersToRange();
  Variant GetParent();
  Variant GetApplication();
  void Delete();

  BookPointer book_;
  DefinedName name_;
};

}  // namespace rangewerks::hosts::libreoffice
