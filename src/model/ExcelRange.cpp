#include "model/ExcelRange.h"

namespace rangewerks::ExcelRange {

eRangeHeadDetailInd DetailIndicatorFromCode(std::string_view code) {
  if (code == "D") return hdiDetail;
  if (code == "H/D") return hdiHeaderDetail;
  return hdiHeader;
}

}  // namespace rangewerks::ExcelRange
