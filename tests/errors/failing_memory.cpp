#include "errors/failing_memory.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();
std::size_t failsFrom = kNever;

}  // namespace

void* operator new(std::size_t size) {
  void* const memory = size < failsFrom ? std::malloc(size == 0 ? 1 : size) : nullptr;
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace rangewerks::tests {

FailingMemory::FailingMemory(std::size_t bytes) { failsFrom = bytes; }
FailingMemory::~FailingMemory() { failsFrom = kNever; }

}  // namespace rangewerks::tests
