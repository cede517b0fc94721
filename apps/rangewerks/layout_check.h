// Whether the layout of a sheet's ranges is sound.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "apps/rangewerks/json_document.h"
#include "apps/rangewerks/progress.h"
#include "apps/rangewerks/sheet_ranges.h"
#include "automation/error.h"

namespace rangewerks::apps {

struct LayoutCheck {
  SheetRanges found;
  std::optional<automation::Error> fault;  ///< none when the layout is sound
};

/// Locates the ranges on `sheet` and validates them. Raises what SetIfRangesExist raises, and the
/// host's error when the host has gone.
LayoutCheck CheckLayout(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                        Progress& progress);

/// The forms in which the result is written out. Each gives the whole text, ending in a line feed.
std::string TableOf(const std::string& book, const LayoutCheck& check);
std::string JsonOf(const std::string& book, const LayoutCheck& check);
/// A heading and a line for each range; the fault has no room in it.
std::string CsvOf(const LayoutCheck& check);
/// Number, description and source of what is wrong with the layout; null when it is sound.
Json JsonFault(const LayoutCheck& check);
/// What is wrong with the layout, in the system's own words, each line with `indent` in front.
std::string FaultLinesOf(const LayoutCheck& check, const std::string& indent);

}  // namespace rangewerks::apps
