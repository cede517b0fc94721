// The late-bound Workbook.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Workbook final : public ModelObject<> {
 public:
  Workbook(SessionPointer session, Book* book);
  /// The one object of that workbook.
  static std::shared_ptr<Workbook> Of(const SessionPointer& session, Book* book);

  const MemberTable& Members() const override;
  Book* Data() const noexcept { return book_; }

 private:
  Variant GetName() const;
  Variant GetPath() const;
  Variant GetFullName() const;
  Variant GetNames(const Variant& index) const;
  Variant GetSheets(const Variant& index) const;
  Variant GetActiveSheet() const;
  Variant GetApplication() const;
  Variant GetVBProject() const;
  Variant GetCustomDocumentProperties(const Variant& index) const;
  void Activate();
  void SaveCopyAs(const Variant& path);

  Book* book_;
};

}  // namespace rangewerks::hosts::workbook
