// The errors that a cell can hold, by number and by text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "automation/variant.h"

namespace rangewerks::hosts {

/// "#DIV/0!" for 2007 and so on; "#VALUE!" for a number that no cell error has.
std::string CellErrorText(automation::ErrorValue error);
/// The error of a text such as "#N/A", in any case.
std::optional<automation::ErrorValue> CellErrorOf(std::string_view text);

}  // namespace rangewerks::hosts
