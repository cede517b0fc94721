// What Windows tells a form's window.
#include <exception>

#include "desktops/win32/container_window.h"
#include "desktops/win32/form_at_work.h"
#include "desktops/win32/units.h"
#include "desktops/win32/win32_form_window.h"

namespace rangewerks::desktops {

namespace {

constexpr UINT kResolutionChanged = 0x02E0;  // WM_DPICHANGED, which older headers lack

}  // namespace

LRESULT CALLBACK Win32FormWindow::Procedure(HWND window, UINT message, WPARAM first,
                                            LPARAM second) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(second);
    auto* self = static_cast<Win32FormWindow*>(creation->lpCreateParams);
    self->window_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<Win32FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, first, second);
  const std::shared_ptr<Win32FormWindow> keep = self->shared_from_this();
  return self->Receive(window, message, first, second);
}

LRESULT Win32FormWindow::Receive(HWND window, UINT message, WPARAM first, LPARAM second) {
  const AtWork atWork(*this);
  const VisualStyles::Active active(*styles_);
  try {
    if (const std::optional<LRESULT> answer = Answer(message, first, second)) return *answer;
  } catch (const std::exception& failure) {
    Tell(failure);
  }
  return DefWindowProcW(window, message, first, second);
}

// Windows can't carry an exception. Handlers report failures themselves; here is what isn't one
// that the library raises.
void Win32FormWindow::Tell(const std::exception& failure) {
  if (closed_) return;
  try {
    desktop_.ReportUnhandled(failure, &form_);
  } catch (const std::exception&) {
    MessageBeep(MB_ICONERROR);  // not even that can be told
  }
}

std::optional<LRESULT> Win32FormWindow::Answer(UINT message, WPARAM first, LPARAM second) {
  if (message == WM_NCDESTROY) {
    Destroyed();
    return std::nullopt;
  }
  if (closed_) {
    if (message != kEndYourself) return std::nullopt;
    endPosted_ = false;
    // This call is the one that may be under way.
    if (atWork_ == 1) DestroyWindow(window_);
    return 0;
  }
  switch (message) {
    case WM_CLOSE:
      form_.PersonClosed();
      return 0;
    case WM_MOVE:
    case WM_SIZE:
      ReportPlace();
      return std::nullopt;
    case kResolutionChanged:
      ChangeResolution(HIWORD(first), *reinterpret_cast<const RECT*>(second));
      return 0;
    case WM_SETCURSOR:
      if (desktop_.Pointer() == forms::MousePointer::Default) return std::nullopt;
      desktop_.SetMousePointer(desktop_.Pointer());
      return TRUE;
    case WM_SYSCOLORCHANGE:
      for (const auto& control : controls_) SendMessageW(control->Handle(), message, 0, 0);
      return std::nullopt;
    default:
      break;
  }
  if (const auto answer = AnswerDialog(message, first, second)) return answer;
  return AnswerControls(message, first, second);
}

std::optional<LRESULT> Win32FormWindow::AnswerControls(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_COMMAND:
      return Command(first, reinterpret_cast<HWND>(second));
    case WM_NOTIFY:
      return Notify(*reinterpret_cast<NMHDR*>(second));
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
      return Paint(message, reinterpret_cast<HDC>(first), reinterpret_cast<HWND>(second));
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> Win32FormWindow::Command(WPARAM first, HWND from) {
  if (from != nullptr) {
    if (ControlWindow* owner = OwnerOf(from)) owner->Commanded(HIWORD(first));
    return 0;
  }
  if (forms::MenuEntry* entry = menu_.EntryOf(LOWORD(first))) entry->PersonClicked();
  return 0;
}

std::optional<LRESULT> Win32FormWindow::Notify(NMHDR& notification) {
  ControlWindow* owner = OwnerOf(notification.hwndFrom);
  return owner == nullptr ? std::nullopt : owner->Notified(notification);
}

std::optional<LRESULT> Win32FormWindow::Paint(UINT message, HDC target, HWND of) const {
  ControlWindow* owner = OwnerOf(of);
  if (owner == nullptr) return std::nullopt;
  if (message == WM_CTLCOLORDLG) {  // a panel's own ground
    static_cast<const PanelWindow*>(owner)->Erase(target);
    return 1;
  }
  HBRUSH ground = owner->Paint(target);
  if (ground == nullptr) return std::nullopt;
  return reinterpret_cast<LRESULT>(ground);
}

}  // namespace rangewerks::desktops
