// The public enumerations of a declared range.
#pragma once

#include <cstdint>

namespace rangewerks {

/// The type of the values that a range holds.
enum eRangeDataType : std::int32_t {
  rdtString = 0,
  rdtDouble = 1,
  rdtDate = 2,
  rdtInteger = 3,
  rdtYesNo = 4,
};

/// Whether a range holds one value for the posting or one for each line.
enum eRangeHeadDetailInd : std::int32_t {
  hdiHeader = 0,        ///< one cell
  hdiDetail = 1,        ///< one column, a cell for each line
  hdiHeaderDetail = 2,  ///< either, as it stands on the sheet
  hdiNone = 3,
};

}  // namespace rangewerks
