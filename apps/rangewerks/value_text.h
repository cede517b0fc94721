// Values as texts that mean the same everywhere: no locale.
#pragma once

#include <cstdint>
#include <string>

#include "automation/variant.h"

namespace rangewerks::apps {

/// The fewest digits that read back as the same number: "12.5", "1250", "-0.07"; with an exponent
/// ("1e+20") from 1e15 up and below 1e-6.
std::string NumberText(double value);

/// A number, a text as it is, a date as ISO 8601, a boolean as "true" or "false"; empty for no
/// value.
std::string ValueText(const automation::Variant& value);

/// What a spreadsheet shows for an error value with that number, such as "#DIV/0!" for 2007.
std::string CellErrorText(std::int32_t number);

/// An error's number in decimal, and one that is an HRESULT also as "0x8004157C".
std::string ErrorNumberText(std::int32_t number);

}  // namespace rangewerks::apps
