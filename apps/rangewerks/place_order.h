// Which declared ranges are to be placed on a sheet, and where.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "apps/rangewerks/cell_block.h"
#include "apps/rangewerks/declared_ranges.h"

namespace rangewerks::apps {

/// One range that is to be placed.
struct PlaceOrder {
  const clsExInputRange* range = nullptr;  ///< one of the list's
  CellBlock at;
  std::int32_t rowsToAdd = 0;     ///< height to give a range that isn't a header; 0 leaves `at`
  std::string heading;            ///< empty for the declared one
  std::int32_t columnWidth = -1;  ///< in characters; -1 leaves it
  std::string place;              ///< "/ranges/3/At (range debit)", or the option, for messages

  const std::string& Name() const { return range->get_RangeName(); }
  /// The cells that the range will have.
  CellBlock Covered() const;
  /// Whether a heading goes into the cell above, where headings are wanted and there is one.
  bool TakesHeading() const;
};

/// Gathers orders, each range at most once. The list must outlive it and what comes of it.
class PlaceOrders {
 public:
  explicit PlaceOrders(const clsInterfaceRangeList& list) : declared_(list) {}

  /// Raises Failure with `namePlace` for a range that isn't declared or stands here already, and
  /// with the order's own place for an address that is none.
  void Add(const std::string& name, const std::string& namePlace, const std::string& address,
           PlaceOrder order);
  std::vector<PlaceOrder> Take() { return std::move(orders_); }

 private:
  DeclaredRanges declared_;
  std::vector<PlaceOrder> orders_;
};

/// The orders of a layout file, in its order. docs/layout-file.md describes the file. Raises
/// Failure, with the file and the place in it, for a file that can't be read or has anything wrong
/// in it.
std::vector<PlaceOrder> ReadLayoutFile(const std::string& path, const clsInterfaceRangeList& list);

/// The same from the file's text; messages start with the place.
std::vector<PlaceOrder> ParseLayout(const std::string& text, const clsInterfaceRangeList& list);

}  // namespace rangewerks::apps
