// Published constants of the spreadsheet object model.
#pragma once

#include <cstdint>

namespace rangewerks::excel {

/// Index of Application.International.
enum InternationalIndex : std::int32_t {
  xlDecimalSeparator = 3,
  xlListSeparator = 5,
  xlDateOrder = 32,
};

/// Error numbers of cells (Variant's ErrorValue::Number).
enum CellError : std::int32_t {
  xlErrNull = 2000,
  xlErrDiv0 = 2007,
  xlErrValue = 2015,
  xlErrRef = 2023,
  xlErrName = 2029,
  xlErrNum = 2036,
  xlErrNA = 2042,
};

}  // namespace rangewerks::excel
