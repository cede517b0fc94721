// The rule of what may be entered into a cell, with its messages.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "hosts/common/validation_texts.h"
#include "hosts/workbook/area_values.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {

struct ValidationRule {
  std::int32_t type = excel::xlValidateInputOnly;
  std::int32_t alertStyle = excel::xlValidAlertStop;
  std::int32_t comparison = 1;  ///< of the numbers of Validation.Operator
  std::string formula;          ///< as it was given
  bool ignoresBlank = true;
  std::string errorTitle;
  std::string errorMessage;
  std::string inputTitle;
  std::string inputMessage;
  friend bool operator==(const ValidationRule&, const ValidationRule&) = default;
};

/// The texts of a rule, in the order of kValidationTexts.
inline constexpr std::array<std::string ValidationRule::*, kValidationTexts.size()> kRuleTexts{
    &ValidationRule::errorTitle, &ValidationRule::errorMessage, &ValidationRule::inputTitle,
    &ValidationRule::inputMessage};

/// The rules of a sheet: a cell has one or none.
using ValidationRules = AreaValues<std::optional<ValidationRule>>;

/// Whether rules of that type compare the entry with their formula.
bool Compares(std::int32_t type);
/// Gives the cells a rule. Raises 1004 for a rule that can't be, a text that is too long too, and
/// when a cell has one already.
void AddRule(ValidationRules& rules, const Area& area, const ValidationRule& rule);

}  // namespace rangewerks::hosts::workbook
