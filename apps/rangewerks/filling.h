// Writing given values into the ranges of a sheet.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "apps/rangewerks/fill_data.h"
#include "apps/rangewerks/sheet_ranges.h"

namespace rangewerks::apps {

/// What became of one given value.
enum class CellOutcome {
  Written,
  Differs,  ///< written, but it doesn't read back as the same value
  Refused,  ///< by a switch of the list; the cell is as it was
  Absent,   ///< the range isn't on the sheet
};

struct FilledCell {
  std::string range;
  std::int32_t row = 0;  ///< the line in the range; 0 for one that acts as a header
  std::string address;   ///< "D17"; empty when the range isn't there
  automation::Variant value;
  CellOutcome outcome = CellOutcome::Absent;
  automation::Variant holds;  ///< what the cell holds in the end, an error as its text
  std::string complaint;      ///< why it can't be read back at all; empty otherwise
};

struct FillReport {
  SheetRanges found;
  std::vector<FilledCell> cells;  ///< header first, then as they were given

  std::size_t Count(CellOutcome outcome) const;
};

/// Called after each cell with the number of cells done and of all.
using CellDone = std::function<void(std::int32_t cell, std::int32_t cells)>;

/// The values as the sheet takes them: those of ranges that act as headers once and first. Raises
/// Failure for a row beyond the end of its range, a header value for a range of several rows, and
/// several different values for a header; `path` is the data file's.
std::vector<GivenValue> FitToSheet(std::vector<GivenValue> values, const SheetRanges& found,
                                   const std::string& path);

/// Writes the values, which must fit. The ranges must have been located. Raises Failure, with the
/// place, when the spreadsheet program fails; cells before that one are written.
FillReport Fill(clsInterfaceRangeList& list, const SheetRanges& found,
                const std::vector<GivenValue>& values, const CellDone& cellDone = {});

}  // namespace rangewerks::apps
