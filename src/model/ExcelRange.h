// The short text codes of the header/detail indicator.
#pragma once

#include <string_view>

#include "model/enumerations.h"

namespace rangewerks::ExcelRange {

/// "H", "D" and "H/D", exactly and in capitals; any other text is hdiHeader.
eRangeHeadDetailInd DetailIndicatorFromCode(std::string_view code);

}  // namespace rangewerks::ExcelRange
