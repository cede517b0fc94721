#include "desktops/win32/keyboard_hook.h"

#include <exception>
#include <unordered_map>

namespace rangewerks::desktops {

namespace {

struct OfThread {
  HHOOK hook = nullptr;
  std::unordered_map<HWND, KeyTaker*> takers;
};

OfThread& Here() {
  static thread_local OfThread here;
  return here;
}

/// The form that a window stands in; windows inside a form that stands inside another form belong
/// to the inner one.
KeyTaker* TakerFor(HWND window) {
  const auto& takers = Here().takers;
  for (; window != nullptr; window = GetAncestor(window, GA_PARENT)) {
    const auto found = takers.find(window);
    if (found != takers.end()) return found->second;
  }
  return nullptr;
}

/// An open menu, or a window being dragged, has the keyboard to itself.
bool IsKeyboardBusy() {
  GUITHREADINFO state{};
  state.cbSize = sizeof state;
  constexpr DWORD kBusy = GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE | GUI_INMOVESIZE;
  return GetGUIThreadInfo(GetCurrentThreadId(), &state) != FALSE && (state.flags & kBusy) != 0;
}

void Offer(MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return;
  KeyTaker* taker = TakerFor(message.hwnd);
  if (taker == nullptr || IsKeyboardBusy() || !taker->TakeKey(message)) return;
  // The loop gets a message that means nothing in its place.
  message.message = WM_NULL;
  message.wParam = 0;
  message.lParam = 0;
}

LRESULT CALLBACK MessageRead(int code, WPARAM removed, LPARAM message) {
  if (code == HC_ACTION && removed == PM_REMOVE) {
    try {
      Offer(*reinterpret_cast<MSG*>(message));
    } catch (const std::exception&) {
      MessageBeep(MB_ICONERROR);  // the key is lost, and nobody above could take the failure
    }
  }
  return CallNextHookEx(nullptr, code, removed, message);
}

}  // namespace

KeyRegistration::KeyRegistration(HWND form, KeyTaker& taker) : form_(form) {
  OfThread& here = Here();
  here.takers[form_] = &taker;
  if (here.hook == nullptr) {
    here.hook = SetWindowsHookExW(WH_GETMESSAGE, MessageRead, nullptr, GetCurrentThreadId());
  }
}

KeyRegistration::~KeyRegistration() {
  OfThread& here = Here();
  here.takers.erase(form_);
  if (here.takers.empty() && here.hook != nullptr) {
    UnhookWindowsHookEx(here.hook);
    here.hook = nullptr;
  }
}

}  // namespace rangewerks::desktops
