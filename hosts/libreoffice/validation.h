// The late-bound Validation: the rule of what may be entered into cells, with its messages.
#pragma once

#include <com/sun/star/sheet/XSheetCondition.hpp>

#include "hosts/libreoffice/cell_properties.h"
#include "hosts/libreoffice/cells_part.h"

namespace rangewerks::hosts::libreoffice {

/// Every call reads the rule from the cells, and writes a changed one back to all of them.
class Validation final : public CellsPart<> {
 public:
  Validation(SessionPointer session, CellBlock cells)
      : CellsPart(std::move(session), std::move(cells)) {}
  const MemberTable& Members() const override;

 private:
  void Add(const Variant& type, const Variant& alertStyle, const Variant& comparison,
           const Variant& formula1);
  void Delete();

  Variant GetType() const;
  Variant GetAlertStyle() const;
  Variant GetOperator() const;
  Variant GetFormula1() const;

  /// One of the four texts, by its number.
  template <std::size_t Text>
  Variant GetText() const;
  template <std::size_t Text>
  void LetText(const Variant& text);
  Variant GetIgnoreBlank() const;
  void LetIgnoreBlank(bool ignores);

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
