#include "desktops/win32/modal_loop.h"

#include <ranges>

namespace rangewerks::desktops {

namespace {

/// Whether a window is another's or stands over it: tool tips, drop-down lists.
bool BelongsTo(HWND window, HWND form) {
  for (; window != nullptr; window = GetWindow(window, GW_OWNER)) {
    if (window == form) return true;
  }
  return false;
}

BOOL CALLBACK AddUsable(HWND window, LPARAM found) {
  if (IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE) {
    reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
  }
  return TRUE;
}

std::vector<HWND> UsableWindows() {
  std::vector<HWND> windows;
  EnumThreadWindows(GetCurrentThreadId(), AddUsable, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

}  // namespace

ModalLoop::ModalLoop(HWND form) : form_(form) {
  for (HWND window : UsableWindows()) {
    if (BelongsTo(window, form_)) continue;
    EnableWindow(window, FALSE);
    disabled_.push_back(window);
  }
}

bool ModalLoop::Run() {
  MSG message{};
  while (!ended_) {
    const BOOL read = GetMessageW(&message, nullptr, 0, 0);
    if (read <= 0) {
      if (read == 0) PostQuitMessage(static_cast<int>(message.wParam));  // for the loop outside
      return false;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return true;
}

void ModalLoop::End() {
  if (ended_) return;
  ended_ = true;
  for (HWND window : std::views::reverse(disabled_)) {
    if (IsWindow(window) != FALSE) EnableWindow(window, TRUE);
  }
  // A call from another program may end the loop while it waits.
  PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

}  // namespace rangewerks::desktops
