#include "automation/case_folding.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "automation/characters.h"

namespace rangewerks::automation {
namespace {

struct Range {
  char32_t first;
  char32_t last;
  std::int32_t delta;
  std::uint32_t stride;
};

constexpr auto kRanges = std::to_array<Range>({
#include "automation/case_folding_table.inc"
});

}  // namespace

char32_t FoldCharacter(char32_t code) {
  if (code < 0x80) return static_cast<unsigned char>(FoldAscii(static_cast<char>(code)));
  const auto* range = std::lower_bound(
      kRanges.begin(), kRanges.end(), code,
      [](const Range& candidate, char32_t wanted) { return candidate.last < wanted; });
  if (range == kRanges.end() || code < range->first) return code;
  if ((code - range->first) % range->stride != 0) return code;
  return static_cast<char32_t>(static_cast<std::int32_t>(code) + range->delta);
}

}  // namespace rangewerks::automation
