// The late-bound Range of a workbook in memory.
#pragma once

#include "hosts/objects/range.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Range final : public ModelObject<objects::Range> {
 public:
  Range(SessionPointer session, SheetPointer sheet, Area area, Elements elements = Elements::Cells);
  static std::shared_ptr<Range> Of(SessionPointer session, const Reference& reference);

  const SheetPointer& OnSheet() const noexcept { return sheet_; }

  Variant GetValue() const override;
  void LetValue(const Variant& value) override;
  const void* Sheet() const noexcept override { return sheet_.get(); }
  std::string SheetName() const override { return sheet_->name; }
  std::shared_ptr<objects::Range> Make(const Area& area, Elements elements) const override;

 protected:
  void RequireAlive() const override { RequireSheetOfRange(*sheet_); }

  Variant GetFormula() const override;
  void LetFormula(const Variant& value) override;
  Variant GetHasFormula() const override;
  void ClearContents() override;

  Variant GetNumberFormat() const override;
  void LetNumberFormat(const std::string& format) override;
  Variant GetHorizontalAlignment() const override;
  void PutHorizontalAlignment(std::int32_t alignment) override;
  Variant GetWrapText() const override;
  void LetWrapText(bool wraps) override;
  Variant GetColumnWidth() const override;
  void PutColumnWidth(double characters) override;
  void FitColumns() override;
  Variant GetFont() const override;
  Variant GetInterior() const override;
  std::shared_ptr<objects::Borders> Lines() const override;
  Variant GetValidation() const override;
  std::shared_ptr<objects::FormatConditions> Conditions() const override;

  std::shared_ptr<objects::HostObject> FindName() const override;
  void LetName(const Variant& name) override;
  Variant GetParent() const override;
  Variant GetApplication() const override;
  bool IsInFront() const override;
  void MakeSelection() override;

 private:
  template <class Read>
  Variant ReadCells(Read read) const;
  template <class Write>
  void WriteCells(const Variant& value, Write write);

  SheetPointer sheet_;
};

}  // namespace rangewerks::hosts::workbook
