#include "hosts/workbook/validation.h"

#include "automation/conversions.h"

namespace rangewerks::hosts::workbook {

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

void Validation::LetIgnoreBlank(bool ignores) {
  ChangeRule([ignores](ValidationRule& rule) { rule.ignoresBlank = ignores; });
}

void Validation::PutText(std::size_t text, const std::string& value) {
  ChangeRule([&](ValidationRule& rule) { rule.*kRuleTexts.at(text) = value; });
}

}  // namespace rangewerks::hosts::workbook
