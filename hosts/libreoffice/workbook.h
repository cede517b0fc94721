// The late-bound Workbook of the office, and the collections Workbooks and Sheets.
#pragma once

#include "hosts/libreoffice/names.h"
#include "hosts/libreoffice/office_object.h"
#include "hosts/objects/workbook.h"

namespace rangewerks::hosts::libreoffice {

class Workbook final : public OfficeObject<objects::Workbook> {
 public:
  Workbook(SessionPointer session, BookPointer book)
      : OfficeObject(std::move(session)), book_(std::move(book)) {}
  static std::shared_ptr<Workbook> Of(const SessionPointer& session, const BookPointer& book);

  /// Those of every host, and Close.
  const MemberTable& Members() const override;
  const BookPointer& InBook() const noexcept { return book_; }

 protected:
  void RequireAlive() const override { RequireOpen(*book_); }

  std::string BookName() const override { return book_->Name(); }
  std::string File() const override { return book_->Path(); }
  std::shared_ptr<objects::Collection> Names() const override;
  std::shared_ptr<objects::Collection> Sheets() const override;
  Variant GetActiveSheet() const override;
  Variant GetApplication() const override;
  void Activate() override { Office()->Activate(book_); }
  Variant GetVBProject() const override;
  std::shared_ptr<objects::Collection> CustomDocumentProperties() const override;
  void SaveCopyAs(const std::string& path) override;

 private:
  void Close(const Variant& saveChanges);

  BookPointer book_;
};

class Sheets final : public OfficeObject<objects::Sheets> {
 public:
  Sheets(SessionPointer session, BookPointer book)
      : OfficeObject(std::move(session)), book_(std::move(book)) {}

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  void RequireAlive() const override { RequireOpen(*book_); }
  std::string BookName() const override { return book_->Name(); }
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override { return book_->SheetCount(); }
  Variant GetParent() const override;
  Variant GetApplication() const override;

 private:
  BookPointer book_;
};

/// The workbooks that were opened or made through this library.
class Workbooks final : public OfficeObject<objects::Workbooks> {
 public:
  explicit Workbooks(SessionPointer session) : OfficeObject(std::move(session)) {}

  /// Those of every host, and Open.
  const MemberTable& Members() const override;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override;
  Variant GetApplication() const override;
  Variant Add() override;

 private:
  Variant Open(const std::string& filename, bool readOnly);
};

}  // namespace rangewerks::hosts::libreoffice
