// What a posting program reads from one sheet: every declared range, located and read by its type.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "automation/variant.h"
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

/// One cell's answer. A cell that isn't found, or is bad, has no value.
struct ReadValue {
  bool found = false;
  automation::Variant value;
  std::optional<std::size_t> badCell;  ///< the place of its entry in PostingRead::badCells
};

/// The values of one line, one for each detail range, in the order of PostingRead::details.
struct DetailRow {
  std::int32_t row = 0;
  std::vector<ReadValue> values;
};

/// A cell whose typed read failed.
struct BadCell {
  std::string range;
  std::int32_t row = 0;  ///< the line in the range; 0 for a range that is declared as a header
  std::string address;   ///< "D17"; empty when the cell can't be told
  std::string content;   ///< what the cell holds, as text; empty when that can't be read
  std::int32_t number = 0;
  std::string description;
  std::string source;
};

struct PostingRead {
  std::string sheet;
  bool usingSheetRangeNames = false;
  std::string namesBeginWith;        ///< what stands in front of a declared name in lookedForAs
  std::vector<FoundRange> ranges;    ///< all, as declared
  std::vector<std::size_t> headers;  ///< places in `ranges` of those used as headers
  std::vector<std::size_t> details;  ///< and of those used as detail
  std::vector<ReadValue> header;     ///< one for each of `headers`
  std::vector<DetailRow> rows;       ///< 1 to the length of the longest detail range
  std::vector<BadCell> badCells;     ///< in the order of reading: header first, then row by row

  bool AnyRangeExists() const;
};

/// Called after each line with the number of lines read and of all.
using LineRead = std::function<void(std::int32_t row, std::int32_t rows)>;

/// Makes `sheet` the list's sheet, locates the ranges and reads every cell. A bad cell is noted and
/// reading goes on. A line beyond the end of a shorter range isn't read there: not found. Raises
/// what SetIfRangesExist raises, and the host's error when the host has gone.
PostingRead ReadPosting(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                        const LineRead& lineRead = {});

}  // namespace rangewerks::apps
