#include "hosts/libreoffice/format_conditions.h"

#include <com/sun/star/sheet/ConditionFormatOperator.hpp>

#include "hosts/common/local_formula.h"
#include "hosts/libreoffice/cell_writing.h"
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

Variant FormatConditions::GetItem(std::int32_t index) const {
  FoundCondition condition(Cells(), index);
  condition.Get();  // fails when there is none
  return std::make_shared<FormatCondition>(Office(), condition);
}

std::int32_t FormatConditions::Count() const {
  return static_cast<std::int32_t>(ConditionsOf(Cells()).size());
}

Variant FormatConditions::AddFormula(const std::string& formula) {
  const auto english = EnglishFormula(formula, Office()->OfficeLocale());
  if (!formula.starts_with('=') || !english) Refuse("\"" + formula + "\" is no formula here");
  RequireWritable(OnSheet(), InArea());
  const css::table::CellAddress first(OnSheet().Index(), InArea().column - 1, InArea().row - 1);
  Formulas& formulas = Cells().book->FormulaTexts();
  const Tokens tokens = formulas.Read(english->substr(1), first);
  RequireUnderstood(tokens, formula);
  const std::int32_t position = AddCondition(Cells(), formulas.WriteNative(tokens, first));
  return std::make_shared<FormatCondition>(Office(), FoundCondition(Cells(), position));
}

void FormatConditions::Delete() {
  RequireWritable(OnSheet(), InArea());
  ClearConditions(Cells());
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
