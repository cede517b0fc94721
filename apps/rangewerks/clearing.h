// Clearing the ranges of a sheet.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "apps/rangewerks/progress.h"
#include "apps/rangewerks/sheet_ranges.h"

namespace rangewerks::apps {

/// Which ranges are to be cleared; all unless something else is chosen.
struct ClearChoice {
  std::optional<std::string> tag;          ///< those with this Tag
  std::vector<std::string> excludeGroups;  ///< but not those of these groups; goes with `tag`
  bool details = false;                    ///< those declared as detail; doesn't go with `tag`
};

/// What became of one declared range.
enum class RangeOutcome {
  Cleared,
  Kept,      ///< a cell of it has a formula
  Excluded,  ///< its group is excluded
  Absent,    ///< it isn't on the sheet
  Other,     ///< it isn't among those to be cleared
};

struct ClearReport {
  SheetRanges found;
  std::vector<RangeOutcome> outcomes;  ///< one for each of found.ranges

  bool KeptAny() const;
};

/// Raises Failure for a tag or group that no range is declared with: a slip of the pen would clear
/// too little or too much.
void RequireDeclared(const ClearChoice& choice, const clsInterfaceRangeList& list);

/// Locates the ranges on `sheet` and clears those chosen; contents go, formats and validation stay.
/// A range with a formula stays as it is, unless all are cleared and DoNotCheckIsFormula is set.
/// Raises the library's errors, ranges before the failing one being cleared, and Failure for a
/// range that has content all the same.
ClearReport Clear(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                  const ClearChoice& choice, Progress& progress);

/// The forms in which the result is written out. Each gives the whole text, ending in a line feed;
/// `saved` is the file that the workbook has been saved to.
std::string TableOf(const std::string& book, const std::string& saved, const ClearReport& report);
std::string JsonOf(const std::string& book, const std::string& saved, const ClearReport& report);
std::string CsvOf(const ClearReport& report);

}  // namespace rangewerks::apps
