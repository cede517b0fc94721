#include "apps/rangewerks/place_order.h"

#include <algorithm>

#include "apps/rangewerks/failure.h"

namespace rangewerks::apps {

CellBlock PlaceOrder::Covered() const {
  CellBlock block = at;
  if (rowsToAdd > 0 && range->get_DetailIndicator() != hdiHeader) block.rows = rowsToAdd;
  return block;
}

bool PlaceOrder::TakesHeading() const {
  if (at.row == 1) return false;
  const eRangeHeadDetailInd indicator = range->get_DetailIndicator();
  return indicator == hdiDetail || (indicator == hdiHeaderDetail && Covered().rows > 1);
}

void PlaceOrders::Add(const std::string& name, const std::string& namePlace,
                      const std::string& address, PlaceOrder order) {
  order.range = &declared_.Find(name, namePlace);
  const auto earlier = std::ranges::find(orders_, order.range, &PlaceOrder::range);
  if (earlier != orders_.end()) {
    throw Failure(namePlace + ": range " + order.Name() + " stands already at " + earlier->place +
                  "; leave one of the two out");
  }
  const auto at = ReadAddress(address);
  if (!at) {
    throw Failure(order.place + ": found \"" + address +
                  "\", expected the address of one cell or of a column of cells, such as B7 or "
                  "B7:B30");
  }
  order.at = *at;
  orders_.push_back(std::move(order));
}

}  // namespace rangewerks::apps
