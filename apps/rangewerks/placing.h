// Placing declared ranges on a sheet.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "apps/rangewerks/layout_check.h"
#include "apps/rangewerks/place_order.h"
#include "platform/registry.h"

namespace rangewerks::apps {

/// What ranges get beside their names and the person's colours.
struct PlaceFeatures {
  bool format = true;      ///< number format and alignment
  bool validation = true;  ///< rules of what may be entered
  bool tooltips = true;    ///< messages shown when a cell is selected
  bool headings = true;    ///< in the cell above a detail column
};

/// What became of one range.
struct PlacedRange {
  std::string name;
  std::string workbookName;
  std::string address;                ///< "D12:D31"
  std::string movedFrom;              ///< where the range was before; empty when it has not moved
  std::vector<std::string> failures;  ///< what couldn't be added to it
};

struct PlaceReport {
  std::vector<PlacedRange> ranges;  ///< as ordered
  LayoutCheck check;                ///< of the sheet afterwards, all declared ranges

  bool AnyFailure() const;
};

/// Raises Failure when two ranges would have a cell in common, the headings above them included, or
/// when one would lie on a declared range that the sheet has already.
void RequireApart(const std::vector<PlaceOrder>& orders, const SheetRanges& onSheet, bool headings);

/// Places ranges on `sheet` with the colours stored in `registry`, and checks the layout that comes
/// of it. Validation and input messages that can't be added are left out and reported. Raises
/// Failure as RequireApart, before anything is changed, and the library's error, with the range
/// and its address in front, when a range can't be placed; ranges before it are then placed.
PlaceReport Place(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                  const std::vector<PlaceOrder>& orders, const PlaceFeatures& features,
                  const std::shared_ptr<platform::Registry>& registry, Progress& progress);

/// The forms in which the result is written out. Each gives the whole text, ending in a line feed;
/// `saved` is the file that the workbook has been saved to. Declared ranges that weren't ordered,
/// and the soundness of the layout, are told of a whole interface only.
struct PlaceOutput {
  std::string book;
  std::string saved;
  bool wholeInterface = false;
};
std::string TableOf(const PlaceOutput& output, const PlaceReport& report);
std::string JsonOf(const PlaceOutput& output, const PlaceReport& report);
std::string CsvOf(const PlaceOutput& output, const PlaceReport& report);

}  // namespace rangewerks::apps
