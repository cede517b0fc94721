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

void RequireTexts(const ValidationRule& rule) {
  for (std::size_t i = 0; i < kRuleTexts.size(); ++i) {
    const std::string fault = FaultOfText(kValidationTexts.at(i), rule.*kRuleTexts.at(i));
    if (!fault.empty()) Refuse(fault);
  }
}

}  // namespace

bool Compares(std::int32_t type) {
  return type == excel::xlValidateWholeNumber || type == excel::xlValidateDecimal ||
         type == excel::xlValidateTextLength;
}

void AddRule(ValidationRules& rules, const Area& area, const ValidationRule& rule) {
  RequireNumbers(rule);
  RequireFormula(rule);
  RequireTexts(rule);
  if (rules.Any(area)) Refuse("Cells of " + AddressOf(area) + " have a validation already");
  rules.Set(area, rule);
}

}  // namespace rangewerks::hosts::workbook
