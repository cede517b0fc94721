#include "desktops/win32/control_window.h"

#include "desktops/win32/failure.h"
#include "desktops/win32/text.h"
#include "desktops/win32/units.h"
#include "desktops/win32/visual_styles.h"
#include "forms/form.h"

namespace rangewerks::desktops {

/// Marks what the window reports meanwhile as the code's own doing.
class ControlWindow::Applying {
 public:
  explicit Applying(ControlWindow& window) : window_(window) { ++window_.applying_; }
  Applying(const Applying&) = delete;
  Applying& operator=(const Applying&) = delete;
  ~Applying() { --window_.applying_; }

 private:
  ControlWindow& window_;
};

ControlWindow::ControlWindow(Surroundings& around, forms::Control& control, HWND parent, int id,
                             const Making& making)
    : around_(around),
      control_(control),
      // Each is a group of its own, so that arrow keys don't wander from control to control.
      window_(CreateWindowExW(making.extendedStyle, making.className, nullptr,
                              making.style | WS_CHILD | WS_CLIPSIBLINGS | WS_GROUP, 0, 0, 0, 0,
                              parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                              ThisModule(), nullptr)) {
  if (window_ == nullptr) throw WindowRefused();
  around_.owners[window_] = this;
}

int ControlWindow::Pixels(double twips) const { return ToPixels(twips, around_.dpi); }

void ControlWindow::Apply(forms::Aspect aspect) {
  const Applying applying(*this);
  switch (aspect) {
    case forms::Aspect::Place:
      return ApplyPlace();
    case forms::Aspect::Text:
      return ApplyText();
    case forms::Aspect::ToolTip:
      return around_.toolTips.Set(around_.form, window_, control_.Properties().toolTip);
    case forms::Aspect::Visible:
      return ApplyVisible();
    case forms::Aspect::Enabled:
      return ApplyEnabled();
    case forms::Aspect::Colours:
      InvalidateRect(window_, nullptr, TRUE);
      return;
    case forms::Aspect::Value:
      return ApplyValue();
    case forms::Aspect::Picture:
      return ApplyPicture();
    case forms::Aspect::Content:
      return ApplyContent();
  }
}

void ControlWindow::ApplyAll() {
  const Applying applying(*this);
  ApplyFont();
  ApplyPlace();
  ApplyText();
  if (!control_.Properties().toolTip.empty()) Apply(forms::Aspect::ToolTip);
  ApplyPicture();
  ApplyContent();
  ApplyValue();
  ApplyEnabled();
  ApplyVisible();
}

void ControlWindow::ApplyPlace() {
  const RECT place = ToPixels(control_.Properties().place, around_.dpi);
  SetWindowPos(window_, nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void ControlWindow::ApplyText() {
  SetWindowTextW(window_, Utf16Of(control_.Properties().text).c_str());
}

void ControlWindow::ApplyFont() {
  const forms::ControlProperties& now = control_.Properties();
  SendMessageW(window_, WM_SETFONT,
               reinterpret_cast<WPARAM>(around_.fonts->Get(now.fontSize, now.bold)), TRUE);
}

void ControlWindow::ApplyVisible() {
  const bool visible = control_.Properties().visible;
  if (!visible) PassFocusOn();
  ShowWindow(window_, visible ? SW_SHOWNA : SW_HIDE);
}

void ControlWindow::ApplyEnabled() {
  bool enabled = true;
  const forms::Control* control = &control_;
  while (control != nullptr && enabled) {
    enabled = control->Properties().enabled;
    control = dynamic_cast<const forms::Control*>(&control->get_Parent());
  }
  if (!enabled) PassFocusOn();
  EnableWindow(window_, enabled ? TRUE : FALSE);
}

void ControlWindow::PassFocusOn() const {
  HWND focus = GetFocus();
  if (focus == nullptr || (focus != window_ && IsChild(window_, focus) == FALSE)) return;
  HWND next = GetNextDlgTabItem(around_.form, focus, FALSE);
  SetFocus(next == nullptr || next == focus ? around_.form : next);
}

forms::Colour ControlWindow::Ground() const {
  const forms::Control* control = &control_;
  while (control != nullptr &&
         control->Properties().backColor == forms::SystemColour::kButtonFace) {
    control = dynamic_cast<const forms::Control*>(&control->get_Parent());
  }
  return control != nullptr ? control->Properties().backColor : forms::SystemColour::kButtonFace;
}

void ControlWindow::Commanded(WORD) {}

std::optional<LRESULT> ControlWindow::Notified(NMHDR&) { return std::nullopt; }

bool ControlWindow::TakeKey(const MSG&) { return false; }

HBRUSH ControlWindow::Paint(HDC target) {
  const forms::Colour ground = Ground();
  SetTextColor(target, ToColorRef(control_.Properties().foreColor));
  SetBkColor(target, ToColorRef(ground));
  return around_.brushes.Get(ground);
}

}  // namespace rangewerks::desktops
