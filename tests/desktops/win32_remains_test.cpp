// What is left of forms that have been closed: nothing.
#include <windows.h>
// These need what comes before.
#include <psapi.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "desktops/win32_form_test.h"

namespace rangewerks::tests {
namespace {

constexpr std::size_t kMany = 1000;

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

/// What this program has of the system, to be compared with a later time.
struct Possessions {
  unsigned drawingNumber = HighestDrawingNumber();
  unsigned windowNumber = HighestWindowNumber();
  SIZE_T memory = PrivateMemory();
  DWORD handles = Handles();
  // Wine doesn't count these.
  DWORD drawing = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  DWORD windows = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);

  /// But for so many drawing objects.
  void ExpectToBeAllThereIs(unsigned kept = 0) const {
    const Possessions now;
    EXPECT_LE(now.drawingNumber, drawingNumber + kept + 20);
    EXPECT_LE(now.windowNumber, windowNumber + 20);
    EXPECT_LT(now.memory, memory + 1'000'000);
    EXPECT_LE(now.handles, handles + 20);
    EXPECT_LE(now.drawing, drawing + 20);
    EXPECT_LE(now.windows, windows + 20);
  }
};

void ShowAndClose(forms::Form& form, int times) {
  for (int i = 0; i < times; ++i) {
    form.Show();
    UpdateWindow(WindowOf(form));
    form.Unload();
    HandOut();
  }
}

class SmallForm final : public forms::Form {
 public:
  explicit SmallForm(forms::Toolkit& toolkit) : Form(toolkit, "SmallForm", {.caption = "Small"}) {}
  forms::MenuEntry mnuFile{*this, "mnuFile", "&File"};
  forms::MenuEntry mnuSave{mnuFile, "mnuSave", "&Save"};
  forms::Frame fraAll{*this, "fraAll", {.place = {0, 0, 3000, 3000}, .text = "All"}};
  forms::TextBox txtSwatch{
      fraAll, "txtSwatch", {.place = {120, 360, 900, 300}, .toolTip = "Hint", .backColor = 0xFF}};
  forms::CommandButton cmdOK{fraAll,
                             "cmdOK",
                             {.place = {120, 900, 900, 300},
                              .text = "OK",
                              .bold = true,
                              .picture = forms::Picture::Ok,
                              .isDefault = true}};
};

class Win32Remains : public Win32FormTest {};

TEST_F(Win32Remains, NothingStaysBehindAThousandShowings) {
  auto small = std::make_shared<SmallForm>(desktop);
  ShowAndClose(*small, 20);
  const Possessions before;
  ShowAndClose(*small, 1000);
  before.ExpectToBeAllThereIs();
}

TEST_F(Win32Remains, NothingStaysBehindOfAnyKindOfControl) {
  ShowAndClose(*form, 10);
  const Possessions before;
  constexpr int kTimes = 60;
  ShowAndClose(*form, kTimes);
  // Wine's calendar keeps a font each time that it is given one. One more object left by each
  // showing would be seen.
  before.ExpectToBeAllThereIs(kTimes);
}

}  // namespace
}  // namespace rangewerks::tests
