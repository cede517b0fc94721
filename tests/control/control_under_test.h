// The colour panel as a container gets it: made by its ProgID, from the sample program's folder.
#pragma once

#include <gtest/gtest.h>
#include <ocidl.h>
#include <rangewerks.h>
#include <windows.h>

#include <cstdint>
#include <vector>

#include "com/bridge/owners.h"
#include "control/container.h"

namespace rangewerks::tests {

/// What a control looks like on a device in memory, row by row, each pixel 0xRRGGBB.
struct Look {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels{};

  std::uint32_t At(int x, int y) const {
    return pixels.at(static_cast<std::size_t>(y * width + x));
  }
};

Look LookOf(IUnknown& control, int width, int height);

class ControlTest : public testing::Test {
 protected:
  ControlTest();
  ~ControlTest() override;

  /// A new control, which no container has yet. Fails the test when it can't be made.
  static com::Pointer<_ctlColourPallet> New();
  /// Puts the control into the container, and makes it active there.
  void Insert();
  void Activate(LONG verb);
  HWND ControlWindow() const;
  /// The windows of a kind in the control, from left to right and top to bottom.
  std::vector<HWND> Fields(const wchar_t* className) const;
  /// Moves the pointer of the mouse there and presses its button.
  void Click(HWND window) const;
  void TypeTab(bool shift) const;

  template <class Interface>
  com::Pointer<Interface> Ask() const {
    auto found = panel.TryQuery<Interface>();
    EXPECT_TRUE(found);
    return found;
  }

 private:
  HANDLE context_;
  ULONG_PTR cookie_ = 0;

 protected:
  Container container;
  com::Pointer<_ctlColourPallet> panel;
};

/// Whether the DLL could go.
HRESULT CanUnloadNow();

// Where the swatches are, in pixels of a control of the usual size.
inline constexpr POINT kColumnSwatch{232, 44};
inline constexpr POINT kHeadingSwatch{232, 90};

}  // namespace rangewerks::tests
