#include "desktops/win32_hands.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include "desktops/win32_input.h"

namespace rangewerks::tests {

namespace {

/// A form's windows are numbered from here, in the order of declaration.
constexpr int kFirstControl = 1000;

void AddAll(const forms::Container& container, std::vector<const forms::Control*>& controls) {
  for (const forms::Control* control : container.Children()) {
    controls.push_back(control);
    const auto* inner = dynamic_cast<const forms::Container*>(control);
    if (inner != nullptr) AddAll(*inner, controls);
  }
}

struct Search {
  int id = 0;
  HWND found = nullptr;
};

BOOL CALLBACK Consider(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  if (GetDlgCtrlID(window) != search.id) return TRUE;
  search.found = window;
  return FALSE;
}

std::vector<const forms::Control*> ControlsOf(const forms::Form& form) {
  std::vector<const forms::Control*> controls;
  AddAll(form, controls);
  return controls;
}

}  // namespace

void HandOut() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void Settle() {
  constexpr DWORD kMoment = 40;  // milliseconds
  // Timers never end while the mouse rests on a control.
  constexpr DWORD kAwaited = QS_ALLINPUT & ~static_cast<DWORD>(QS_TIMER);
  do {
    HandOut();
  } while (MsgWaitForMultipleObjects(0, nullptr, FALSE, kMoment, kAwaited) == WAIT_OBJECT_0);
  HandOut();
}

bool SettleUntil(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(15);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    Settle();
  }
  return true;
}

void QueueKeys(std::initializer_list<std::initializer_list<WORD>> groups) {
  for (const auto& keys : groups) Send(KeysTogether(keys));
}

void PressKeys(std::initializer_list<WORD> keys) {
  QueueKeys({keys});
  Settle();
}

void Click(HWND window, POINT point) {
  PointAt(window, point);
  Settle();
  Send(Clicks(1));
  Settle();
}

void DoubleClick(HWND window, POINT point) {
  PointAt(window, point);
  Settle();
  Send(Clicks(2));
  Settle();
}

void Click(HWND window) { Click(window, MiddleOf(InnerArea(window))); }

POINT MiddleOf(const RECT& area) {
  return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

HWND WindowOf(const forms::Form& form) {
  return form.Window() == nullptr ? nullptr : reinterpret_cast<HWND>(form.Window()->Handle());
}

HWND WindowOf(const forms::Control& control) {
  const auto controls = ControlsOf(control.OwningForm());
  const auto place = std::ranges::find(controls, &control) - controls.begin();
  Search search{kFirstControl + static_cast<int>(place), nullptr};
  EnumChildWindows(WindowOf(control.OwningForm()), Consider, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::string Focused(forms::Form& form) {
  const HWND focus = GetFocus();
  for (const forms::Control* control : ControlsOf(form)) {
    if (focus != nullptr && WindowOf(*control) == focus) return control->get_Name();
  }
  return {};
}

RECT InnerArea(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  return area;
}

COLORREF PixelAt(HWND window, POINT point) {
  UpdateWindow(window);
  const HDC device = GetDC(window);
  const COLORREF colour = GetPixel(device, point.x, point.y);
  ReleaseDC(window, device);
  return colour;
}

bool ShowsColour(HWND window, COLORREF colour) {
  UpdateWindow(window);
  const RECT area = InnerArea(window);
  const HDC device = GetDC(window);
  bool shown = false;
  for (LONG y = 0; y < area.bottom && !shown; ++y) {
    for (LONG x = 0; x < area.right && !shown; ++x) shown = GetPixel(device, x, y) == colour;
  }
  ReleaseDC(window, device);
  return shown;
}

}  // namespace rangewerks::tests
