#include "apps/rangewerks/declared_ranges.h"

#include "apps/rangewerks/closest_word.h"
#include "apps/rangewerks/failure.h"

namespace rangewerks::apps {

DeclaredRanges::DeclaredRanges(const clsInterfaceRangeList& list) {
  for (std::int32_t index = 1; index <= list.Count(); ++index) {
    const auto record = list.Item(index);
    names_.push_back(record->get_RangeName());
    ranges_.emplace(record->get_RangeName(), record.get());
  }
}

const clsExInputRange& DeclaredRanges::Find(const std::string& name,
                                            const std::string& place) const {
  const auto range = ranges_.find(name);
  if (range == ranges_.end()) {
    throw Failure(place + ": the interface file declares no range \"" + name + "\"" +
                  DidYouMean(name, names_));
  }
  return *range->second;
}

}  // namespace rangewerks::apps
