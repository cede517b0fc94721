// The late-bound Workbook of a workbook in memory.
#pragma once

#include "hosts/objects/workbook.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Workbook final : public ModelObject<objects::Workbook> {
 public:
  Workbook(SessionPointer session, Book* book) : ModelObject(std::move(session)), book_(book) {}
  /// The one object of that workbook.
  static std::shared_ptr<Workbook> Of(const SessionPointer& session, Book* book);

  Book* Data() const noexcept { return book_; }

 protected:
  std::string BookName() const override { return book_->name; }
  std::string File() const override { return book_->path; }
  std::shared_ptr<objects::Collection> Names() const override;
  std::shared_ptr<objects::Collection> Sheets() const override;
  Variant GetActiveSheet() const override;
  Variant GetApplication() const override;
  void Activate() override { Shared()->active = book_; }
  Variant GetVBProject() const override;
  std::shared_ptr<objects::Collection> CustomDocumentProperties() const override;
  void SaveCopyAs(const std::string& path) override;

 private:
  Book* book_;
};

}  // namespace rangewerks::hosts::workbook
