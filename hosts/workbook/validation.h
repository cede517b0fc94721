// The late-bound Validation of a range, which is there also when no cell has a rule.
#pragma once

#include "hosts/workbook/cells_object.h"
#include "hosts/workbook/validation_rule.h"

namespace rangewerks::hosts::workbook {

class Validation final : public CellsObject<> {
 public:
  Validation(SessionPointer session, SheetPointer sheet, Area area);
  const MemberTable& Members() const override;

 private:
  void Add(std::int32_t type, const Variant& alertStyle, const Variant& comparison,
           const Variant& formula);
  void Delete();

  Variant GetType() const;
  Variant GetAlertStyle() const;
  Variant GetOperator() const;
  Variant GetFormula1() const;
  Variant GetIgnoreBlank() const;
  void LetIgnoreBlank(bool ignores);
  template <std::size_t Text>
  Variant GetText() const;
  template <std::size_t Text>
  void LetText(const std::string& text);

  /// The rule of the cells. Raises 1004 unless they all have the same one.
  ValidationRule Rule() const;

  /// Changes the rule of the cells. Raises 1004 unless all have one.
  template <class Change>
  void ChangeRule(Change change);
};

}  // namespace rangewerks::hosts::workbook
