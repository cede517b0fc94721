#include "desktops/win32/window_classes.h"

#include <mutex>

#include "desktops/win32/visual_styles.h"

namespace rangewerks::desktops {

namespace {

struct Users {
  std::mutex lock;
  int count = 0;
};

Users& AllUsers() {
  static Users users;
  return users;
}

/// Hands up what the controls on a panel tell and ask: the form answers for all of them.
LRESULT CALLBACK PanelProcedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
    case WM_NEXTDLGCTL:
      return SendMessageW(GetParent(window), message, first, second);
    case WM_ERASEBKGND:
      // The ground is the colour that the panel's own form knows.
      return SendMessageW(GetParent(window), WM_CTLCOLORDLG, first,
                          reinterpret_cast<LPARAM>(window)) == 0
                 ? DefWindowProcW(window, message, first, second)
                 : 1;
    case WM_CTLCOLORDLG:
      return SendMessageW(GetParent(window), message, first, second);
    default:
      return DefWindowProcW(window, message, first, second);
  }
}

void Register(const wchar_t* name, WNDPROC procedure, HBRUSH ground) {
  WNDCLASSEXW wanted{};
  wanted.cbSize = sizeof wanted;
  wanted.lpfnWndProc = procedure;
  wanted.hInstance = ThisModule();
  wanted.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));  // the arrow
  wanted.hbrBackground = ground;
  wanted.lpszClassName = name;
  RegisterClassExW(&wanted);
}

}  // namespace

WindowClasses::WindowClasses(WNDPROC form) {
  Users& users = AllUsers();
  const std::lock_guard guard(users.lock);
  if (++users.count > 1) return;
  HBRUSH const ground = GetSysColorBrush(COLOR_3DFACE);
  Register(kFormClass, form, ground);
  Register(kPanelClass, PanelProcedure, ground);
}

WindowClasses::~WindowClasses() {
  Users& users = AllUsers();
  const std::lock_guard guard(users.lock);
  if (--users.count > 0) return;
  UnregisterClassW(kFormClass, ThisModule());
  UnregisterClassW(kPanelClass, ThisModule());
}

}  // namespace rangewerks::desktops
