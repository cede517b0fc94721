// What a posting program reads from one sheet: every declared range, located and read by its type.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "apps/rangewerks/sheet_ranges.h"
#include "automation/variant.h"

namespace rangewerks::apps {

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

struct PostingRead : SheetRanges {
  std::vector<std::size_t> headers;  ///< places in `ranges` of those used as headers
  std::vector<std::size_t> details;  ///< and of those used as detail
  std::vector<ReadValue> header;     ///< one for each of `headers`
  std::vector<DetailRow> rows;       ///< 1 to the length of the longest detail range
  std::vector<BadCell> badCells;     ///< in the order of reading: header first, then row by row
};

/// Called after each line with the number of lines read and of all.
using LineRead = std::function<void(std::int32_t row, std::int32_t rows)>;

/// Locates the ranges on `sheet` as LocateRanges does and reads every cell. A bad cell is noted and
/// reading goes on. A line beyond the end of a shorter range isn't read there: not found. Raises
/// what SetIfRangesExist raises, and the host's error when the host has gone.
PostingRead ReadPosting(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                        const LineRead& lineRead = {});

}  // namespace rangewerks::apps
