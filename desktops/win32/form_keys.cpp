// Keys and the keyboard's focus in a form: what dialogs do, for windows that aren't dialogs.
#include "desktops/win32/form_at_work.h"
#include "desktops/win32/win32_form_window.h"

namespace rangewerks::desktops {

namespace {

bool TakesEnter(const ControlWindow& window) {
  const forms::ControlProperties& now = window.Shown().Properties();
  return window.Shown().Kind() == forms::ControlKind::TextBox && now.multiLine && !now.locked;
}

bool IsManyLines(const ControlWindow& window) {
  return window.Shown().Kind() == forms::ControlKind::TextBox &&
         window.Shown().Properties().multiLine;
}

}  // namespace

bool Win32FormWindow::TakeKey(MSG& message) {
  if (closed_ || window_ == nullptr) return false;
  const std::shared_ptr<Win32FormWindow> keep = shared_from_this();
  const AtWork atWork(*this);
  const VisualStyles::Active active(*styles_);
  ControlWindow* owner = OwnerOf(message.hwnd);
  if (owner != nullptr && owner->TakeKey(message)) return true;
  // A field that a control has opened inside itself.
  if (owner == nullptr && message.hwnd != window_) return false;
  if (message.message == WM_KEYDOWN) {
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    const bool control = GetKeyState(VK_CONTROL) < 0;
    switch (message.wParam) {
      case VK_RETURN:
        if (owner != nullptr && TakesEnter(*owner)) break;
        if (PressByEnter(message.hwnd)) return true;
        break;
      case VK_ESCAPE:
        if (const ControlWindow* cancel = FindButton(&forms::ControlProperties::isCancel)) {
          Press(*cancel);
        }
        return true;  // a text of many lines would close the form by it
      case VK_TAB:
        if (owner == nullptr || control || !IsManyLines(*owner)) break;
        MoveFocus(shift);
        return true;
      default:
        break;
    }
  }
  return IsDialogMessageW(window_, &message) != FALSE;
}

bool Win32FormWindow::PressByEnter(HWND focus) {
  const ControlWindow* button = OwnerOf(focus);
  if (button == nullptr || button->Shown().Kind() != forms::ControlKind::CommandButton) {
    button = FindButton(&forms::ControlProperties::isDefault);
  }
  if (button == nullptr) return false;
  Press(*button);
  return true;
}

void Win32FormWindow::Press(const ControlWindow& button) {
  SendMessageW(window_, WM_COMMAND, MAKEWPARAM(button.Id(), BN_CLICKED),
               reinterpret_cast<LPARAM>(button.Handle()));
}

bool Win32FormWindow::IsUsable(const ControlWindow& window) const {
  return IsWindowVisible(window.Handle()) != FALSE && IsWindowEnabled(window.Handle()) != FALSE;
}

ControlWindow* Win32FormWindow::FindButton(bool forms::ControlProperties::*role) const {
  for (const auto& control : controls_) {
    if (control->Shown().Properties().*role && IsUsable(*control)) return control.get();
  }
  return nullptr;
}

void Win32FormWindow::MoveFocus(bool back) {
  GiveFocus(GetNextDlgTabItem(window_, GetFocus(), back ? TRUE : FALSE));
}

void Win32FormWindow::GiveFocus(HWND window) {
  if (window == nullptr) return;
  SetFocus(window);
  const auto code = static_cast<UINT>(SendMessageW(window, WM_GETDLGCODE, 0, 0));
  // Nobody types over a text that is shown only.
  const bool locked = (GetWindowLongPtrW(window, GWL_STYLE) & ES_READONLY) != 0;
  if ((code & DLGC_HASSETSEL) != 0 && !locked) SendMessageW(window, EM_SETSEL, 0, -1);
}

void Win32FormWindow::RestoreFocus() {
  const bool usable = focus_ != nullptr && IsChild(window_, focus_) != FALSE &&
                      IsWindowVisible(focus_) != FALSE && IsWindowEnabled(focus_) != FALSE;
  if (usable) {
    SetFocus(focus_);
  } else {
    GiveFocus(GetNextDlgTabItem(window_, nullptr, FALSE));
  }
}

void Win32FormWindow::FocusOn(forms::Control& control) {
  const ControlWindow* window = WindowOf(control);
  if (window == nullptr) return;
  const AtWork atWork(*this);
  focus_ = window->Handle();
  if (IsUsable(*window)) SetFocus(focus_);
}

void Win32FormWindow::FocusOnForm() {
  if (window_ == nullptr || IsWindowVisible(window_) == FALSE) return;
  const AtWork atWork(*this);
  SetForegroundWindow(window_);
  HWND focus = GetFocus();
  if (focus == nullptr || IsChild(window_, focus) == FALSE) SetFocus(window_);
}

std::optional<LRESULT> Win32FormWindow::AnswerDialog(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_ACTIVATE: {
      HWND focus = GetFocus();
      if (LOWORD(first) == WA_INACTIVE && IsChild(window_, focus) != FALSE) focus_ = focus;
      return std::nullopt;
    }
    case WM_SETFOCUS:
      RestoreFocus();
      return 0;
    case WM_NEXTDLGCTL:
      if (LOWORD(second) != 0) {
        GiveFocus(reinterpret_cast<HWND>(first));
      } else {
        MoveFocus(first != 0);
      }
      return 0;
    case DM_GETDEFID: {
      const ControlWindow* button = FindButton(&forms::ControlProperties::isDefault);
      return button == nullptr ? 0 : MAKELRESULT(button->Id(), DC_HASDEFID);
    }
    case DM_SETDEFID:
      return TRUE;  // the design says which it is
    default:
      return std::nullopt;
  }
}

}  // namespace rangewerks::desktops
