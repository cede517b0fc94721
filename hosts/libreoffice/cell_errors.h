// The office's error codes as the error values of the object model.
#pragma once

#include <cstdint>

#include "automation/variant.h"

namespace rangewerks::hosts::libreoffice {

/// The error value for a code that a cell reports. Codes without a counterpart, such as those of
/// formulas that couldn't be understood, are #VALUE!.
automation::ErrorValue ErrorOfCode(std::int32_t code);

/// Whether the code says that a formula isn't one at all: a bracket or an operand missing, a bad
/// character, an unknown separator.
bool IsSyntaxError(std::int32_t code);

}  // namespace rangewerks::hosts::libreoffice
