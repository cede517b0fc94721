#include "apps/rangewerks/given_values.h"

#include "apps/rangewerks/closest_word.h"
#include "apps/rangewerks/failure.h"

namespace rangewerks::apps {

GivenValues::GivenValues(const clsInterfaceRangeList& list) {
  for (std::int32_t index = 1; index <= list.Count(); ++index) {
    const auto record = list.Item(index);
    names_.push_back(record->get_RangeName());
    ranges_.emplace(record->get_RangeName(), record.get());
  }
}

const clsExInputRange& GivenValues::Range(const std::string& name, const std::string& place) const {
  const auto range = ranges_.find(name);
  if (range == ranges_.end()) {
    throw Failure(place + ": the interface file declares no range \"" + name + "\"" +
                  DidYouMean(name, names_));
  }
  if (range->second->get_DetailIndicator() == hdiNone) {
    throw Failure(place + ": range " + range->second->get_RangeName() +
                  " is declared as hdiNone, neither header nor detail; it takes no value");
  }
  return *range->second;
}

void GivenValues::Add(GivenValue value) {
  if (!given_.emplace(value.range, value.row).second) {
    throw Failure(value.place + ": range " + value.range +
                  " has a value for this row already; leave one of the two out");
  }
  values_.push_back(std::move(value));
}

}  // namespace rangewerks::apps
