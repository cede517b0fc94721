// The late-bound Validation of cells of the office.
#pragma once

#include <com/sun/star/sheet/XSheetCondition.hpp>

#include "hosts/libreoffice/cell_properties.h"
#include "hosts/libreoffice/cells_part.h"
#include "hosts/objects/validation.h"

namespace rangewerks::hosts::libreoffice {

/// Every call reads the rule from the cells, and writes a changed one back to all of them.
class Validation final : public CellsPart<objects::Validation> {
 public:
  Validation(SessionPointer session, CellBlock cells)
      : CellsPart(std::move(session), std::move(cells)) {}

 protected:
  void Add(std::int32_t type, const Variant& alertStyle, const Variant& comparison,
           const Variant& formula) override;
  void Delete() override;

  Variant GetType() const override;
  Variant GetAlertStyle() const override;
  Variant GetOperator() const override;
  Variant GetFormula1() const override;
  Variant GetIgnoreBlank() const override;
  void LetIgnoreBlank(bool ignores) override;
  std::string Text(std::size_t text) const override;
  void PutText(std::size_t text, const std::string& value) override;

 private:
  using Rule = Reference<css::beans::XPropertySet>;
  /// Raises 1004 when the cells have no rule, or not the same.
  Rule Required() const;
  Rule RequiredOf(const CellProperties& cells) const;
  void PutProperty(const char* property, const Any& value);
  void PutCondition(const Rule& rule, std::int32_t type, const Variant& comparison,
                    const Variant& formula1) const;
  /// What the rule compares with, in the office's notation. Raises 1004 for what isn't a number,
  /// nor a formula, nor a list.
  std::string NativeFormula(std::int32_t type, const Variant& formula1) const;
  css::table::CellAddress FirstCell() const;
  std::string Place() const;
};

}  // namespace rangewerks::hosts::libreoffice
