#include "apps/rangewerks/value_text.h"

#include <array>
#include <charconv>
#include <cmath>

#include "automation/conversions.h"
#include "platform/excel_constants.h"

namespace rangewerks::apps {

using automation::Variant;

std::string NumberText(double value) {
  const double size = std::fabs(value);
  const bool plain = value == 0 || (size >= 1e-6 && size < 1e15);
  std::array<char, 64> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                 plain ? std::chars_format::fixed : std::chars_format::scientific);
  return {digits.data(), end.ptr};
}

std::string ValueText(const Variant& value) {
  if (const auto* number = value.TryGet<double>()) return NumberText(*number);
  if (const auto* number = value.TryGet<std::int16_t>()) return std::to_string(*number);
  if (const auto* date = value.TryGet<automation::Date>()) return automation::IsoDate(*date);
  if (const auto* yes = value.TryGet<bool>()) return *yes ? "true" : "false";
  if (const auto* text = value.TryGet<std::string>()) return *text;
  return {};
}

std::string CellErrorText(std::int32_t number) {
  switch (number) {
    case excel::xlErrNull:
      return "#NULL!";
    case excel::xlErrDiv0:
      return "#DIV/0!";
    case excel::xlErrValue:
      return "#VALUE!";
    case excel::xlErrRef:
      return "#REF!";
    case excel::xlErrName:
      return "#NAME?";
    case excel::xlErrNum:
      return "#NUM!";
    case excel::xlErrNA:
      return "#N/A";
    default:
      return "error value " + std::to_string(number);
  }
}

std::string ErrorNumberText(std::int32_t number) {
  std::string text = std::to_string(number);
  if (number >= 0) return text;
  constexpr const char* kDigits = "0123456789ABCDEF";
  const auto bits = static_cast<std::uint32_t>(number);
  text += " (0x";
  for (int shift = 28; shift >= 0; shift -= 4) text += kDigits[(bits >> shift) & 0xFU];
  return text + ")";
}

}  // namespace rangewerks::apps
