// The late-bound Validation of a range in memory.
#pragma once

#include "hosts/objects/validation.h"
#include "hosts/workbook/cells_object.h"
#include "hosts/workbook/validation_rule.h"

namespace rangewerks::hosts::workbook {

class Validation final : public CellsObject<objects::Validation> {
 public:
  Validation(SessionPointer session, SheetPointer sheet, Area area)
      : CellsObject(std::move(session), std::move(sheet), area) {}

 protected:
  void Add(std::int32_t type, const Variant& alertStyle, const Variant& comparison,
           const Variant& formula) override;
  void Delete() override { sheet_->validation.Set(area_, std::nullopt); }

  Variant GetType() const override { return Rule().type; }
  Variant GetAlertStyle() const override { return Rule().alertStyle; }
  Variant GetOperator() const override { return Rule().comparison; }
  Variant GetFormula1() const override { return Rule().formula; }
  Variant GetIgnoreBlank() const override { return Rule().ignoresBlank; }
  void LetIgnoreBlank(bool ignores) override;
  std::string Text(std::size_t text) const override { return Rule().*kRuleTexts.at(text); }
  void PutText(std::size_t text, const std::string& value) override;

 private:
  /// The rule of the cells. Raises 1004 unless they all have the same one.
  ValidationRule Rule() const;

  /// Changes the rule of the cells. Raises 1004 unless all have one.
  template <class Change>
  void ChangeRule(Change change);
};

}  // namespace rangewerks::hosts::workbook
