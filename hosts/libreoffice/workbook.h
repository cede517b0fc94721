// The late-bound Workbook, and the collections Workbooks and Sheets.
#pragma once

#include "hosts/libreoffice/names.h"
#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {

/// A collection itself, or with an index one of its elements: what Workbook.Names and its like are.
template <class Collection, class... Arguments>
Variant Element(const Variant& index, Arguments&&... arguments) {
  const auto all = std::make_shared<Collection>(std::forward<Arguments>(arguments)...);
  return index.IsMissing() ? Variant(all) : all->GetItem(index);
}

class Workbook final : public OfficeObject<> {
 public:
  Workbook(SessionPointer session, BookPointer book);
  static std::shared_ptr<Workbook> Of(const SessionPointer& session, const BookPointer& book);
  const MemberTable& Members() const override;
  const BookPointer& InBook() const noexcept { return book_; }

 protected:
  void RequireAlive() const override { RequireOpen(*book_); }

 private:
  Variant GetName() const;
  Variant GetPath() const;
  Variant GetFullName() const;
  Variant GetNames(const Variant& index) const;
  Variant GetSheets(const Variant& index) const;
  Variant GetActiveSheet() const;
  Variant GetApplication() const;
  Variant GetCustomDocumentProperties(const Variant& index) const;
  Variant GetVBProject() const;
  void Activate();
  void SaveCopyAs(const Variant& path);
  void Close(const Variant& saveChanges);

  BookPointer book_;
};

class Sheets final : public OfficeObject<> {
 public:
  Sheets(SessionPointer session, BookPointer book);
  const MemberTable& Members() const override;
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  void RequireAlive() const override { RequireOpen(*book_); }

 private:
  Variant GetCount() const;
  Variant GetParent() const;
  Variant GetApplication() const;

  BookPointer book_;
};

/// The workbooks that were opened or made through this library.
class Workbooks final : public OfficeObject<> {
 public:
  explicit Workbooks(SessionPointer session) : OfficeObject(std::move(session)) {}
  const MemberTable& Members() const override;
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant GetCount() const;
  Variant GetApplication() const;
  Variant Add();
  Variant Open(const Variant& filename, const Variant& readOnly);
};

}  // namespace rangewerks::hosts::libreoffice
