#include "desktops/win32_possessions.h"

#include <gtest/gtest.h>
// This needs what comes before.
#include <psapi.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace rangewerks::tests {

namespace {

constexpr std::size_t kMany = 1000;
constexpr unsigned kFew = 20;

/// The highest number among many new objects. They take all the numbers that are free first, so
/// that it grows by one with each object that isn't given back.
template <class Make, class Drop>
unsigned HighestNumber(Make make, Drop drop) {
  unsigned highest = 0;
  std::vector<decltype(make())> made;
  for (std::size_t i = 0; i < kMany; ++i) {
    made.push_back(make());
    highest = std::max(
        highest, static_cast<unsigned>(LOWORD(reinterpret_cast<std::uintptr_t>(made.back()))));
  }
  for (const auto& object : made) drop(object);
  return highest;
}

unsigned HighestDrawingNumber() {
  return HighestNumber([] { return CreateSolidBrush(0x123456); }, DeleteObject);
}

unsigned HighestWindowNumber() { return HighestNumber(CreateMenu, DestroyMenu); }

BOOL CALLBACK Count(HWND window, LPARAM count) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == GetCurrentProcessId()) ++*reinterpret_cast<int*>(count);
  return TRUE;
}

int Windows() {
  int count = 0;
  EnumWindows(Count, reinterpret_cast<LPARAM>(&count));
  return count;
}

SIZE_T PrivateMemory() {
  PROCESS_MEMORY_COUNTERS counters{};
  GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return counters.PagefileUsage;
}

DWORD Handles() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return count;
}

}  // namespace

Possessions::Possessions()
    : drawingNumber_(HighestDrawingNumber()),
      windowNumber_(HighestWindowNumber()),
      windows_(Windows()),
      memory_(PrivateMemory()),
      handles_(Handles()),
      drawingObjects_(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)),
      windowObjects_(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) {}

void Possessions::ExpectToBeAllThereIs(unsigned kept) const {
  const Possessions now;
  EXPECT_LE(now.drawingNumber_, drawingNumber_ + kept + kFew);
  EXPECT_LE(now.windowNumber_, windowNumber_ + kFew);
  EXPECT_EQ(now.windows_, windows_);
  EXPECT_LT(now.memory_, memory_ + 1'000'000);
  EXPECT_LE(now.handles_, handles_ + kFew);
  EXPECT_LE(now.drawingObjects_, drawingObjects_ + kept + kFew);
  EXPECT_LE(now.windowObjects_, windowObjects_ + kFew);
}

}  // namespace rangewerks::tests
