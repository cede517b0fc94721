// A cell read by the type that its range is declared with.
#pragma once

#include <cstdint>
#include <string>

#include "automation/variant.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks::apps {

/// Whether line `row` of a range has a value, which goes into `value` as a double, date, 16-bit
/// integer, boolean or text; the empty value of the type when there is none. Raises what the list's
/// typed reads raise.
bool ReadTyped(clsInterfaceRangeList& list, const std::string& range, eRangeDataType type,
               std::int32_t row, automation::Variant& value);

}  // namespace rangewerks::apps
