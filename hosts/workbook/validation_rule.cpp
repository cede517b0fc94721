#include "hosts/workbook/validation_rule.h"

#include "automation/text.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
namespace {

constexpr std::size_t kLongestFormula = 255;

void RequireFormula(const ValidationRule& rule) {
  if (rule.type == excel::xlValidateInputOnly) return;
  if (automation::IsBlank(rule.formula)) {
    Refuse("A validation of the type " + std::to_string(rule.type) + " needs Formula1");
  }
  if (automation::Length(rule.formula) > kLongestFormula) {
    Refuse("The formula of a validation can't have more than 255 characters");
  }
}

void RequireNumbers(const ValidationRule& rule) {
  switch (rule.type) {
    case excel::xlValidateInputOnly:
    case excel::xlValidateWholeNumber:
    case excel::xlValidateDecimal:
    case excel::xlValidateList:
    case excel::xlValidateTextLength:
      break;
    default:
      Refuse("A validation is of the type 0, 1, 2, 3 or 6, not " + std::to_string(rule.type));
  }
  if (rule.alertStyle < 1 || rule.alertStyle > 3) {
    Refuse("The alert style of a validation is 1, 2 or 3, not " + std::to_string(rule.alertStyle));
  }
  if (Compares(rule.type) && (rule.comparison < 3 || rule.comparison > 8)) {
    Refuse("The operator of a validation is 3 to 8 (those with one formula), not " +
           std::to_string(rule.comparison));
  }
}

}  // namespace

bool Compares(std::int32_t type) {
  return type == excel::xlValidateWholeNumber || type == excel::xlValidateDecimal ||
         type == excel::xlValidateTextLength;
}

void RequireLength(const RuleText& text, const std::string& value) {
  if (automation::Length(value) <= text.longest) return;
  Refuse(std::string("The ") + text.member + " of a validation can't have more than " +
         std::to_string(text.longest) + " characters");
}

void AddRule(ValidationRules& rules, const Area& area, const ValidationRule& rule) {
  RequireNumbers(rule);
  RequireFormula(rule);
  for (const RuleText& text : kRuleTexts) RequireLength(text, rule.*text.text);
  if (rules.Any(area)) Refuse("Cells of " + AddressOf(area) + " have a validation already");
  rules.Set(area, rule);
}

}  // namespace rangewerks::hosts::workbook
