#include "hosts/common/cell_errors.h"

#include <array>

#include "automation/text.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts {
namespace {

using automation::ErrorValue;

struct CellErrorName {
  excel::CellError number;
  const char* text;
};

constexpr std::array<CellErrorName, 7> kErrors{{{excel::xlErrNull, "#NULL!"},
                                                {excel::xlErrDiv0, "#DIV/0!"},
                                                {excel::xlErrValue, "#VALUE!"},
                                                {excel::xlErrRef, "#REF!"},
                                                {excel::xlErrName, "#NAME?"},
                                                {excel::xlErrNum, "#NUM!"},
                                                {excel::xlErrNA, "#N/A"}}};

}  // namespace

std::string CellErrorText(ErrorValue error) {
  for (const auto& [number, text] : kErrors) {
    if (error.Number() == number) return text;
  }
  return "#VALUE!";
}

std::optional<ErrorValue> CellErrorOf(std::string_view text) {
  if (!text.starts_with('#')) return std::nullopt;
  for (const CellErrorName& each : kErrors) {
    if (automation::EqualText(text, each.text)) return ErrorValue::FromNumber(each.number);
  }
  return std::nullopt;
}

}  // namespace rangewerks::hosts
