// The words that a workbook file has for the numbers of formats, lines and validations.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "hosts/common/format_numbers.h"
#include "hosts/workbook/cell_format.h"
#include "hosts/workbook/lines.h"
#include "hosts/workbook/validation_rule.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {

template <class Value>
struct FileWord {
  const char* word;
  Value value;
};

inline constexpr std::array<FileWord<std::int32_t>, 3> kAlignmentWords{
    {{"left", excel::xlLeft}, {"center", kCenter}, {"right", excel::xlRight}}};

inline constexpr std::array<FileWord<Line>, 5> kLineWords{{{"hairline", Line::Hairline},
                                                           {"thin", Line::Thin},
                                                           {"medium", Line::Medium},
                                                           {"thick", Line::Thick},
                                                           {"double", Line::Double}}};

inline constexpr std::array<FileWord<std::int32_t>, 5> kValidationTypeWords{
    {{"input_only", excel::xlValidateInputOnly},
     {"whole_number", excel::xlValidateWholeNumber},
     {"decimal", excel::xlValidateDecimal},
     {"list", excel::xlValidateList},
     {"text_length", excel::xlValidateTextLength}}};

inline constexpr std::array<FileWord<std::int32_t>, 3> kAlertStyleWords{
    {{"stop", excel::xlValidAlertStop}, {"warning", 2}, {"information", 3}}};

inline constexpr std::array<FileWord<std::int32_t>, 6> kOperatorWords{
    {{"equal", 3},
     {"not_equal", 4},
     {"greater", excel::xlGreater},
     {"less", 6},
     {"greater_equal", 7},
     {"less_equal", excel::xlLessEqual}}};

/// The keys of a validation's texts, in the order of kRuleTexts.
inline constexpr std::array<const char*, kRuleTexts.size()> kRuleTextKeys{
    "error_title", "error_message", "input_title", "input_message"};

/// The word for a value that has one.
template <class Value, std::size_t Size>
const char* WordOf(const std::array<FileWord<Value>, Size>& words, Value value) {
  for (const auto& each : words) {
    if (each.value == value) return each.word;
  }
  return "";
}

/// "#RRGGBB".
std::string ColorText(Color color);

}  // namespace rangewerks::hosts::workbook
