// The values of a data file as they are gathered, whatever its form.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "apps/rangewerks/fill_data.h"
#include "automation/text.h"

namespace rangewerks::apps {

constexpr std::int32_t kMostRows = 1048576;  ///< of any sheet

class GivenValues {
 public:
  explicit GivenValues(const clsInterfaceRangeList& list);

  /// The declared range of that name, in any case of letters. Raises Failure with the place, and
  /// the nearest name, when there is none.
  const clsExInputRange& Range(const std::string& name, const std::string& place) const;
  /// Raises Failure when the range has a value for that row already.
  void Add(GivenValue value);
  std::vector<GivenValue> Take() { return std::move(values_); }

 private:
  std::unordered_map<std::string, const clsExInputRange*, automation::FoldedHash,
                     automation::FoldedEqual>
      ranges_;
  std::vector<std::string_view> names_;
  std::set<std::pair<std::string, std::int32_t>> given_;
  std::vector<GivenValue> values_;
};

}  // namespace rangewerks::apps
