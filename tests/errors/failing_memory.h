// Memory that runs out on request, for tests of what the library does then.
#pragma once

#include <cstddef>

namespace rangewerks::tests {

/// As long as it lives, every request of at least that many bytes fails.
class FailingMemory {
 public:
  explicit FailingMemory(std::size_t bytes);
  FailingMemory(const FailingMemory&) = delete;
  FailingMemory& operator=(const FailingMemory&) = delete;
  ~FailingMemory();
};

}  // namespace rangewerks::tests
