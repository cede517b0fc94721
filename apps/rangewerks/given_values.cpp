#include "apps/rangewerks/given_values.h"

#include "apps/rangewerks/failure.h"

namespace rangewerks::apps {

const clsExInputRange& GivenValues::Range(const std::string& name, const std::string& place) const {
  const clsExInputRange& range = ranges_.Find(name, place);
  if (range.get_DetailIndicator() == hdiNone) {
    throw Failure(place + ": range " + range.get_RangeName() +
                  " is declared as hdiNone, neither header nor detail; it takes no value");
  }
  return range;
}

void GivenValues::Add(GivenValue value) {
  if (!given_.emplace(value.range, value.row).second) {
    throw Failure(value.place + ": range " + value.range +
                  " has a value for this row already; leave one of the two out");
  }
  values_.push_back(std::move(value));
}

}  // namespace rangewerks::apps
