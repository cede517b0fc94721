// Where the library's conversions differ from those of the platform's automation library as the
// tests find it, which is Wine's: each kind of difference with its reason. docs/conversions.md has
// the same list in words for people.
#pragma once

#include <vector>

#include "windows/conversion_case.h"

namespace rangewerks::tests {

struct Difference {
  const char* name;
  const char* reason;  ///< why ours stays as it is
  bool (*explains)(const Case& c);
};

/// In no order. A case may be explained by several; each explains some case alone.
const std::vector<Difference>& ListedDifferences();

}  // namespace rangewerks::tests
