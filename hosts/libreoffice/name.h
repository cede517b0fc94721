// The late-bound Name of the office.
#pragma once

#include "hosts/libreoffice/defined_names.h"
#include "hosts/libreoffice/office_object.h"
#include "hosts/objects/name.h"

namespace rangewerks::hosts::libreoffice {

class Name final : public OfficeObject<objects::Name> {
 public:
  Name(SessionPointer session, BookPointer book, DefinedName name)
      : OfficeObject(std::move(session)), book_(std::move(book)), name_(std::move(name)) {}

 protected:
  void RequireAlive() const override;

  std::string FullText() override { return name_.FullText(); }
  bool IsOfSheet(const std::string& sheet) override;
  void Rename(const std::string& text, const std::string& given) override;
  std::string RefersTo() override { return name_.RefersTo(); }
  void LetRefersTo(const Variant& content) override;
  std::shared_ptr<objects::Range> FindCells() override;
  Variant GetParent() override;
  Variant GetApplication() override;
  void Delete() override { name_.Delete(); }

 private:
  BookPointer book_;
  DefinedName name_;
};

}  // namespace rangewerks::hosts::libreoffice
