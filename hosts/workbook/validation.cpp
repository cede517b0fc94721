#include "hosts/workbook/validation.h"

#include "automation/conversions.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
Validation::Validation(SessionPointer session, SheetPointer sheet, Area area)
    : CellsObject(std::move(session), std::move(sheet), area) {}

const MemberTable& Validation::Members() const {
  using C = Validation;
  static const MemberTable table =
      MemberTable::For<C>("Validation")
          .Method(1, "Add", &C::Add,
                  {"Type", Optional("AlertStyle"), Optional("Operator"), Optional("Formula1")},
                  "Gives cells without a rule one.")
          .Method(2, "Delete", &C::Delete, {}, "Takes the rules of the cells away.")
          .Get(3, "Type", &C::GetType, "What kind of entries the rule is about.")
          .Get(4, "AlertStyle", &C::GetAlertStyle, "What happens to other entries.")
          .Get(5, "Operator", &C::GetOperator, "How entries are compared with the formula.")
          .Get(6, "Formula1", &C::GetFormula1, "The formula as it was given.")
          .Get(7, "IgnoreBlank", &C::GetIgnoreBlank, "Whether the cell may stay empty.")
          .Let(7, "IgnoreBlank", &C::LetIgnoreBlank, "Lets the cell stay empty, or not.")
          .Get(8, "ErrorTitle", &C::GetText<0>, "Title of what is said about other entries.")
          .Let(8, "ErrorTitle", &C::LetText<0>, "Up to 32 characters.")
          .Get(9, "ErrorMessage", &C::GetText<1>, "What is said about other entries.")
          .Let(9, "ErrorMessage", &C::LetText<1>, "Up to 225 characters.")
          .Get(10, "InputTitle", &C::GetText<2>, "Title of what is shown at the selected cell.")
          .Let(10, "InputTitle", &C::LetText<2>, "Up to 32 characters.")
          .Get(11, "InputMessage", &C::GetText<3>, "What is shown at the selected cell.")
          .Let(11, "InputMessage", &C::LetText<3>, "Up to 255 characters.");
  return table;
}

void Validation::Add(std::int32_t type, const Variant& alertStyle, const Variant& comparison,
                     const Variant& formula) {
  ValidationRule rule;
  rule.type = type;
  if (!alertStyle.IsMissing()) rule.alertStyle = LongArgument(alertStyle);
  if (!comparison.IsMissing()) rule.comparison = LongArgument(comparison);
  if (!formula.IsMissing()) rule.formula = TextArgument(formula);
  const bool isFormula = rule.formula.starts_with('=');
  if (Compares(type) && !isFormula &&
      !automation::IsNumeric(rule.formula, Shared()->international.CurrentLocale())) {
    Refuse("Formula1 of a validation of the type " + std::to_string(type) +
           R"( is a number or begins with "="; it can't be ")" + rule.formula + "\"");
  }
  AddRule(sheet_->validation, area_, rule);
}

void Validation::Delete() { sheet_->validation.Set(area_, std::nullopt); }

ValidationRule Validation::Rule() const {
  const auto common = sheet_->validation.Common(
      area_, [](const std::optional<ValidationRule>& rule) { return rule; });
  if (!common) Refuse("The cells " + Place() + " don't all have the same validation");
  if (!*common) Refuse("The cells " + Place() + " have no validation");
  return **common;
}

template <class Change>
void Validation::ChangeRule(Change change) {
  bool all = true;
  sheet_->validation.Visit(area_, [&](const auto& rule) { all = all && rule.has_value(); });
  if (!all) Refuse("The cells " + Place() + " don't all have a validation");
  sheet_->validation.Change(area_, [&](auto& rule) { change(*rule); });
}

Variant Validation::GetType() const { return Rule().type; }
Variant Validation::GetAlertStyle() const { return Rule().alertStyle; }
Variant Validation::GetOperator() const { return Rule().comparison; }
Variant Validation::GetFormula1() const { return Rule().formula; }
Variant Validation::GetIgnoreBlank() const { return Rule().ignoresBlank; }

void Validation::LetIgnoreBlank(bool ignores) {
  ChangeRule([ignores](ValidationRule& rule) { rule.ignoresBlank = ignores; });
}

template <std::size_t Text>
Variant Validation::GetText() const {
  return Rule().*kRuleTexts.at(Text).text;
}

template <std::size_t Text>
void Validation::LetText(const std::string& text) {
  RequireLength(kRuleTexts.at(Text), text);
  ChangeRule([&](ValidationRule& rule) { rule.*kRuleTexts.at(Text).text = text; });
}

}  // namespace rangewerks::hosts::workbook
