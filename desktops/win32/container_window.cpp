#include "desktops/win32/container_window.h"

#include "desktops/win32/failure.h"
#include "desktops/win32/text.h"
#include "desktops/win32/units.h"
#include "desktops/win32/visual_styles.h"
#include "desktops/win32/window_classes.h"

namespace rangewerks::desktops {

PanelWindow::PanelWindow(Surroundings& around, forms::Control& panel, HWND parent, int id)
    : ControlWindow(around, panel, parent, id,
                    {.className = kPanelClass,
                     .style = WS_CLIPCHILDREN,
                     .extendedStyle = WS_EX_CONTROLPARENT}) {}

void PanelWindow::Erase(HDC target) const {
  RECT all{};
  GetClientRect(Handle(), &all);
  FillRect(target, &all, Around().brushes.Get(Ground()));
}

// The box is transparent, and below what stands on the frame: it paints its border and caption
// only.
FrameWindow::FrameWindow(Surroundings& around, forms::Control& frame, HWND parent, int id)
    : PanelWindow(around, frame, parent, id),
      box_(CreateWindowExW(WS_EX_TRANSPARENT, L"Button", nullptr,
                           WS_CHILD | WS_VISIBLE | WS_GROUP | BS_GROUPBOX, 0, 0, 0, 0, Handle(),
                           nullptr, ThisModule(), nullptr)) {
  if (box_ == nullptr) throw WindowRefused();
  around.owners[box_] = this;
}

void FrameWindow::ApplyPlace() {
  PanelWindow::ApplyPlace();
  const RECT place = ToPixels(Shown().Properties().place, Around().dpi);
  SetWindowPos(box_, nullptr, 0, 0, WidthOf(place), HeightOf(place), SWP_NOZORDER | SWP_NOACTIVATE);
}

void FrameWindow::ApplyText() { SetWindowTextW(box_, Utf16Of(Shown().Properties().text).c_str()); }

void FrameWindow::ApplyFont() {
  const forms::ControlProperties& now = Shown().Properties();
  SendMessageW(box_, WM_SETFONT,
               reinterpret_cast<WPARAM>(Around().fonts->Get(now.fontSize, now.bold)), TRUE);
}

void FrameWindow::ApplyEnabled() {
  PanelWindow::ApplyEnabled();
  EnableWindow(box_, IsWindowEnabled(Handle()));
}

}  // namespace rangewerks::desktops
