// The late-bound Worksheet of a workbook in memory.
#pragma once

#include "hosts/objects/worksheet.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Worksheet final : public ModelObject<objects::Worksheet> {
 public:
  Worksheet(SessionPointer session, SheetPointer sheet)
      : ModelObject(std::move(session)), sheet_(std::move(sheet)) {}
  /// The one object of that sheet.
  static std::shared_ptr<Worksheet> Of(const SessionPointer& session, const SheetPointer& sheet);

  const SheetPointer& Data() const noexcept { return sheet_; }

 protected:
  void RequireAlive() const override;

  std::string SheetName() const override { return sheet_->name; }
  const void* Sheet() const noexcept override { return sheet_.get(); }
  std::shared_ptr<objects::Range> Make(const Area& area) const override;
  std::optional<Reference> FindName(const std::string& name, bool hasSheet) const override;

  void LetName(const std::string& name) override { sheet_->book->RenameSheet(sheet_, name); }
  Variant GetIndex() const override;
  std::shared_ptr<objects::Collection> Names() const override;
  Variant GetParent() const override;
  Variant GetApplication() const override;
  void Activate() override;
  void Delete() override { sheet_->book->RemoveSheet(sheet_); }

 private:
  SheetPointer sheet_;
};

}  // namespace rangewerks::hosts::workbook
