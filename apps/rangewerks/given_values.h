// The values of a data file as they are gathered, whatever its form.
#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "apps/rangewerks/cell_block.h"
#include "apps/rangewerks/declared_ranges.h"
#include "apps/rangewerks/fill_data.h"

namespace rangewerks::apps {

class GivenValues {
 public:
  explicit GivenValues(const clsInterfaceRangeList& list) : ranges_(list) {}

  /// As DeclaredRanges::Find; raises Failure also for a range that takes no value.
  const clsExInputRange& Range(const std::string& name, const std::string& place) const;
  /// Raises Failure when the range has a value for that row already.
  void Add(GivenValue value);
  std::vector<GivenValue> Take() { return std::move(values_); }

 private:
  DeclaredRanges ranges_;
  std::set<std::pair<std::string, std::int32_t>> given_;
  std::vector<GivenValue> values_;
};

}  // namespace rangewerks::apps
