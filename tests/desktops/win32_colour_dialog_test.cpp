#include <gtest/gtest.h>

#include <optional>

#include "desktops/win32/dialogs.h"
#include "desktops/win32_person.h"

namespace rangewerks::tests {
namespace {

using desktops::ShowColourDialog;

// The dialog's own numbers of its controls.
constexpr int kRed = 706;
constexpr int kGreen = 707;
constexpr int kBlue = 708;
constexpr int kKeep = 712;
constexpr int kMixedColours = 721;

void Mix(HWND dialog) {
  Write(dialog, kRed, L"16");
  Write(dialog, kGreen, L"32");
  Write(dialog, kBlue, L"48");
}

TEST(Win32ColourDialog, ReturnsTheColourWithItsRedInTheLowestByte) {
  const Person person([](HWND dialog) {
    Mix(dialog);
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowColourDialog(nullptr), 0x302010);
}

TEST(Win32ColourDialog, CancelGivesNothing) {
  const Person person([](HWND dialog) {
    Mix(dialog);
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(ShowColourDialog(nullptr), std::nullopt);
}

TEST(Win32ColourDialog, NoColourIsPresetEvenAfterOneWasChosen) {
  const Person person([](HWND dialog) { Press(dialog, IDOK); });
  EXPECT_EQ(ShowColourDialog(nullptr), 0);
}

COLORREF FirstMixedColour(HWND dialog) {
  const HWND colours = GetDlgItem(dialog, kMixedColours);
  const HDC device = GetDC(colours);
  const COLORREF colour = GetPixel(device, 8, 8);
  ReleaseDC(colours, device);
  return colour;
}

TEST(Win32ColourDialog, ColoursThatThePersonMixedAreOfferedAgain) {
  {
    const Person person([](HWND dialog) {
      Mix(dialog);
      SendMessageW(GetDlgItem(dialog, kKeep), BM_CLICK, 0, 0);
      Press(dialog, IDCANCEL);
    });
    ShowColourDialog(nullptr);
  }
  bool offered = false;
  {
    const Person person([&](HWND dialog) {
      offered = WaitUntil([&] { return FirstMixedColour(dialog) == 0x302010; });
      Press(dialog, IDCANCEL);
    });
    ShowColourDialog(nullptr);
  }
  EXPECT_TRUE(offered);
}

}  // namespace
}  // namespace rangewerks::tests
