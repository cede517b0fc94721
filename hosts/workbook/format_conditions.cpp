#include "hosts/workbook/format_conditions.h"

#include "hosts/common/local_formula.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/interior.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {
// --- all of a range ------------------------------------------------------------------------------

FormatConditions::FormatConditions(SessionPointer session, SheetPointer sheet, Area area)
    : CellsObject(std::move(session), std::move(sheet), area) {}

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

Variant FormatConditions::Face(const ConditionalFormatPointer& format) const {
  return std::make_shared<FormatCondition>(Shared(), sheet_, area_, format);
}

Variant FormatConditions::GetItem(std::int32_t index) const {
  const auto formats = sheet_->conditionalFormats.Of(area_);
  if (index < 1 || index > static_cast<std::int32_t>(formats.size())) {
    RefuseElement(Place() + " has " + std::to_string(formats.size()) +
                  " conditional formats; there is none with the number " + std::to_string(index));
  }
  return Face(formats[static_cast<std::size_t>(index - 1)]);
}

Variant FormatConditions::Add(std::int32_t type, const Variant& /*comparison*/,
                              const Variant& formula) {
  if (type != excel::xlExpression) {
    Refuse("A conditional format is of the type 2 (a formula), not " + std::to_string(type));
  }
  if (formula.IsMissing()) Refuse("A conditional format needs Formula1");
  const std::string text = TextArgument(formula);
  const automation::Locale& locale = Shared()->international.CurrentLocale();
  if (!EnglishFormula(text, locale)) {
    Refuse("The formula " + text + " can't be read where \"" + locale.listSeparator +
           "\" separates arguments");
  }
  const auto format = sheet_->conditionalFormats.Add(text);
  format->cells.Set(area_, true);
  return Face(format);
}

Variant FormatConditions::GetCount() const {
  return static_cast<std::int32_t>(sheet_->conditionalFormats.Of(area_).size());
}

void FormatConditions::Delete() { sheet_->conditionalFormats.RemoveAll(area_); }

std::unique_ptr<Enumerator> FormatConditions::Walk() {
  std::vector<Variant> elements;
  for (const auto& format : sheet_->conditionalFormats.Of(area_)) elements.push_back(Face(format));
  return std::make_unique<automation::SnapshotEnumerator>(std::move(elements));
}

// --- one of them ---------------------------------------------------------------------------------

FormatCondition::FormatCondition(SessionPointer session, SheetPointer sheet, Area area,
                                 ConditionalFormatPointer format)
    : CellsObject(std::move(session), std::move(sheet), area), format_(std::move(format)) {}

const MemberTable& FormatCondition::Members() const {
  static const MemberTable table =
      MemberTable::For<FormatCondition>("FormatCondition")
          .Get(1, "Type", &FormatCondition::GetType, "2: a formula.")
          .Get(2, "Formula1", &FormatCondition::GetFormula1, "The formula as it was given.")
          .Get(3, "Interior", &FormatCondition::GetInterior, "The fill while the formula holds.")
          .Method(4, "Delete", &FormatCondition::Delete, {}, "Removes it from the cells.");
  return table;
}

void FormatCondition::RequireAlive() const {
  CellsObject::RequireAlive();
  RequireThere(*format_);
}

Variant FormatCondition::GetType() const { return std::int32_t{excel::xlExpression}; }
Variant FormatCondition::GetFormula1() const { return format_->formula; }
Variant FormatCondition::GetInterior() const {
  return std::make_shared<ConditionFill>(Shared(), sheet_, area_, format_);
}
void FormatCondition::Delete() { sheet_->conditionalFormats.Remove(area_, format_); }

}  // namespace rangewerks::hosts::workbook
