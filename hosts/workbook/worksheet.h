// The late-bound Worksheet.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Worksheet final : public ModelObject<> {
 public:
  Worksheet(SessionPointer session, SheetPointer sheet);
  /// The one object of that sheet.
  static std::shared_ptr<Worksheet> Of(const SessionPointer& session, const SheetPointer& sheet);

  const MemberTable& Members() const override;
  const SheetPointer& Data() const noexcept { return sheet_; }

  Variant GetRange(const Variant& first, const Variant& second) const;
  Variant GetCells(const Variant& row, const Variant& column) const;

 protected:
  Variant Carry(const Invocation& call) override;
  void RequireAlive() const override;

 private:
  Variant GetName() const;
  void LetName(const Variant& name);
  Variant GetIndex() const;
  Variant GetNames(const Variant& index) const;
  Variant GetParent() const;
  Variant GetApplication() const;
  void Activate();
  void Delete();

  Area AreaOf(const Variant& cells) const;
  Area AreaOf(const std::string& nameOrAddress) const;

  SheetPointer sheet_;
};

}  // namespace rangewerks::hosts::workbook
