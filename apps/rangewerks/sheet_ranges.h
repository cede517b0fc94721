// The declared ranges as they were found on a sheet.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/excel.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks::apps {

/// How the values of a range go into a posting.
enum class RangeUse {
  Header,  ///< one value for the whole posting
  Detail,  ///< one value for each line
  None,    ///< declared as neither: it is located, not read
};

/// One declared range as it was found on the sheet.
struct FoundRange {
  std::string name;
  std::string lookedForAs;  ///< the workbook name that marks it as there
  eRangeDataType type = rdtString;
  std::int16_t decimalPlaces = 2;
  bool isMandatory = false;
  RangeUse use = RangeUse::Header;
  bool exists = false;
  bool actsAsHeader = false;  ///< declared as a header, or of one row and allowed to be one
  std::string address;        ///< "B7:B306"; empty when the area can't be told
  std::int32_t rows = 0;      ///< of the area; 0 when there is none
};

struct SheetRanges {
  std::string sheet;
  bool usingSheetRangeNames = false;
  std::string namesBeginWith;      ///< what stands in front of a declared name in lookedForAs
  std::vector<FoundRange> ranges;  ///< all, as declared

  bool AnyRangeExists() const;
};

/// Makes `sheet` the list's sheet and finds out which ranges it has. Raises what SetIfRangesExist
/// raises.
SheetRanges LocateRanges(clsInterfaceRangeList& list, const excel::Worksheet& sheet);

/// "$B$7:$B$9" as "B7:B9", with the sheet in front when it is another than the one given.
std::string ShownAddress(const excel::Range& area, const std::string& sheet);

}  // namespace rangewerks::apps
