// The ranges of an interface by the names that a file or a person gives.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "automation/text.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks::apps {

/// The list must outlive this.
class DeclaredRanges {
 public:
  explicit DeclaredRanges(const clsInterfaceRangeList& list);

  /// The declared range of that name, in any case of letters. Raises Failure with the place, and
  /// the nearest name, when there is none.
  const clsExInputRange& Find(const std::string& name, const std::string& place) const;

 private:
  std::unordered_map<std::string, const clsExInputRange*, automation::FoldedHash,
                     automation::FoldedEqual>
      ranges_;
  std::vector<std::string_view> names_;
};

}  // namespace rangewerks::apps
