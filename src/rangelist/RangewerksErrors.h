// The library's own error numbers, public as an enumeration.
#pragma once

#include <cstdint>

namespace rangewerks {

enum RangewerksErrors : std::int32_t {
  /// The cell's content can't be used as the type asked for.
  errRwkInvalidRangeValue = static_cast<std::int32_t>(0x8004157CU),
  /// A number has more decimal places than allowed.
  errPLInvalidDecimalPlaces = static_cast<std::int32_t>(0x8004157DU),
};

}  // namespace rangewerks
