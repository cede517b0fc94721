// The error numbers of a selection that can't take a browse, public as an enumeration.
#pragma once

#include <cstdint>

namespace rangewerks {

enum elgErrors : std::int32_t {
  errRowsInvalidRangeForBrowse = 700,
  errColumnsInvalidRangeForBrowse = 701,
};

}  // namespace rangewerks
