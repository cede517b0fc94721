#include "hosts/libreoffice/format_conditions.h"

#include <com/sun/star/sheet/ConditionFormatOperator.hpp>

#include "hosts/common/local_formula.h"
#include "hosts/libreoffice/cell_writing.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/interior.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr std::int32_t kCellValue = 1;
constexpr const char* kStyleName = "StyleName";

std::string StyleOf(const Condition& condition) {
  return ToUtf8(Property<OUString>(condition.parts.front().Entry(), kStyleName));
}

class ConditionInterior final : public Interior {
 public:
  ConditionInterior(SessionPointer session, const FoundCondition& condition)
      : Interior(std::move(session), condition.Cells()), condition_(condition) {}

 protected:
  std::optional<std::int32_t> ReadFill() override {
    return Cells().book->Styles().FillOf(StyleOf(condition_.GetPlain()));
  }

  void PutFill(std::int32_t fill) override {
    RequireWritable(OnSheet(), InArea());
    const Condition& condition = condition_.GetPlain();
    const Any style(ToUno(Cells().book->Styles().WithFill(StyleOf(condition), fill)));
    for (const Condition::Part& part : condition.parts) {
      part.Entry()->setPropertyValue(ToUno(kStyleName), style);
    }
  }

 private:
  FoundCondition condition_;
};

}  // namespace

const MemberTable& FormatConditions::Members() const {
  static const MemberTable table =
      MemberTable::For<FormatConditions>("FormatConditions")
          .Get(0, "Item", &FormatConditions::GetItem, {"Index"}, "One condition, from 1.")
          .Get(1, "Count", &FormatConditions::GetCount, "Number of conditions.")
          .Method(2, "Add", &FormatConditions::Add,
                  {"Type", Optional("Operator"), Optional("Formula1")}, "Adds a condition.")
          .Method(3, "Delete", &FormatConditions::Delete, {}, "Removes all conditions.");
  return table;
}

Variant FormatConditions::GetItem(const Variant& index) const {
  FoundCondition condition(Cells(), LongArgument(index));
  condition.Get();  // fails when there is none
  return std::make_shared<FormatCondition>(Office(), condition);
}

Variant FormatConditions::GetCount() const {
  return static_cast<std::int32_t>(ConditionsOf(Cells()).size());
}

Variant FormatConditions::Add(const Variant& type, const Variant& /*comparison*/,
                              const Variant& formula1) {
  if (LongArgument(type) != excel::xlExpression) {
    Fail("A conditional format of the type " + std::to_string(LongArgument(type)) +
         " can't be added");
  }
  const std::string local = formula1.IsMissing() ? "" : TextArgument(formula1);
  const auto english = EnglishFormula(local, Office()->OfficeLocale());
  if (!local.starts_with('=') || !english) Fail("\"" + local + "\" is no formula here");
  RequireWritable(OnSheet(), InArea());
  const css::table::CellAddress first(OnSheet().Index(), InArea().column - 1, InArea().row - 1);
  Formulas& formulas = Cells().book->FormulaTexts();
  const Tokens tokens = formulas.Read(english->substr(1), first);
  RequireUnderstood(tokens, local);
  const std::int32_t position = AddCondition(Cells(), formulas.WriteNative(tokens, first));
  return std::make_shared<FormatCondition>(Office(), FoundCondition(Cells(), position));
}

void FormatConditions::Delete() {
  RequireWritable(OnSheet(), InArea());
  ClearConditions(Cells());
}

const MemberTable& FormatCondition::Members() const {
  static const MemberTable table =
      MemberTable::For<FormatCondition>("FormatCondition")
          .Get(1, "Type", &FormatCondition::GetType, "What decides: a formula, the cell's value.")
          .Get(2, "Formula1", &FormatCondition::GetFormula1, "The formula, as the locale has it.")
          .Get(3, "Interior", &FormatCondition::GetInterior, "The fill while it holds.")
          .Method(4, "Delete", &FormatCondition::Delete, {}, "Removes it from these cells.");
  return table;
}

Variant FormatCondition::GetType() {
  const Condition& condition = condition_.GetPlain();
  const auto comparison = Property<std::int32_t>(condition.parts.front().Entry(), "Operator");
  return comparison == css::sheet::ConditionFormatOperator::EXPRESSION
             ? static_cast<std::int32_t>(excel::xlExpression)
             : kCellValue;
}

Variant FormatCondition::GetFormula1() {
  // The office writes it for the user, with the separators of the locale.
  const Condition& condition = condition_.GetPlain();
  return "=" + ToUtf8(Property<OUString>(condition.parts.front().Entry(), "Formula1"));
}

Variant FormatCondition::GetInterior() {
  return std::make_shared<ConditionInterior>(Office(), condition_);
}

void FormatCondition::Delete() {
  RequireWritable(OnSheet(), InArea());
  RemoveCondition(Cells(), condition_.Get());
}

}  // namespace rangewerks::hosts::libreoffice
