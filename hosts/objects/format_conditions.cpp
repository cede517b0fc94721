#include "hosts/objects/format_conditions.h"

#include "platform/excel_constants.h"

namespace rangewerks::hosts::objects {

const MemberTable& FormatConditions::Members() const {
  static const MemberTable table =
      MemberTable::For<FormatConditions>("FormatConditions")
          .Get(0, "Item", &FormatConditions::GetItem, {"Index"}, "One of them, from 1.")
          .Method(1, "Add", &FormatConditions::Add,
                  {"Type", Optional("Operator"), Optional("Formula1")},
                  "Adds one behind those that the cells have.")
          .Get(2, "Count", &FormatConditions::GetCount, "Number of conditional formats.")
          .Method(3, "Delete", &FormatConditions::Delete, {}, "Removes all of them.");
  return table;
}

Variant FormatConditions::GetCount() const { return Count(); }

Variant FormatConditions::Add(std::int32_t type, const Variant& /*comparison*/,
                              const Variant& formula) {
  if (type != excel::xlExpression) {
    Refuse("A conditional format is of the type 2 (a formula), not " + std::to_string(type));
  }
  if (formula.IsMissing()) Refuse("A conditional format needs Formula1");
  return AddFormula(TextArgument(formula));
}

std::unique_ptr<Enumerator> FormatConditions::Walk() {
  std::vector<Variant> elements;
  const std::int32_t count = Count();
  for (std::int32_t i = 1; i <= count; ++i) elements.push_back(GetItem(i));
  return std::make_unique<automation::SnapshotEnumerator>(std::move(elements));
}

const MemberTable& FormatCondition::Members() const {
  static const MemberTable table =
      MemberTable::For<FormatCondition>("FormatCondition")
          .Get(1, "Type", &FormatCondition::GetType, "2: a formula.")
          .Get(2, "Formula1", &FormatCondition::GetFormula1, "The formula as it was given.")
          .Get(3, "Interior", &FormatCondition::GetInterior, "The fill while the formula holds.")
          .Method(4, "Delete", &FormatCondition::Delete, {}, "Removes it from the cells.");
  return table;
}

}  // namespace rangewerks::hosts::objects
