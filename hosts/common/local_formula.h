// Formulas as a person of some locale writes them: "=IF(A1>0,5; 1; 2)".
#pragma once

#include <optional>
#include <string>

#include "automation/locale.h"

namespace rangewerks::hosts {

/// The formula with "," between arguments and "." in numbers; function names are English in both.
/// None where the text can't be meant in that locale, such as "=MOD(ROW(), 2)" where the comma
/// stands in numbers, and for array constants, whose separators are others again.
std::optional<std::string> EnglishFormula(const std::string& local,
                                          const automation::Locale& locale);

}  // namespace rangewerks::hosts
