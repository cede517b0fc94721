#include "windows_desktop/person_at_forms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cctype>
#include <thread>

#include "desktops/win32_input.h"

namespace rangewerks::tests {

namespace {

BOOL CALLBACK Add(HWND window, LPARAM found) {
  reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
  return TRUE;
}

std::vector<HWND> PartsOf(HWND form) {
  std::vector<HWND> parts;
  EnumChildWindows(form, Add, reinterpret_cast<LPARAM>(&parts));
  return parts;
}

std::vector<HWND> VisibleWindows() {
  std::vector<HWND> windows;
  EnumWindows(Add, reinterpret_cast<LPARAM>(&windows));
  std::erase_if(windows, [](HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process != GetCurrentProcessId() || IsWindowVisible(window) == FALSE;
  });
  return windows;
}

bool IsControl(HWND window, const std::wstring& className) {
  constexpr int kFirstControl = 1000;  // parts of controls are numbered otherwise
  return ClassOf(window) == className && GetDlgCtrlID(window) >= kFirstControl;
}

HWND FocusOf(HWND form) {
  GUITHREADINFO state{};
  state.cbSize = sizeof state;
  GetGUIThreadInfo(GetWindowThreadProcessId(form, nullptr), &state);
  return state.hwndFocus;
}

void ClickTimes(HWND window, POINT point, int times) {
  EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(window) != FALSE; }));
  PointAt(window, point);
  Send(Clicks(times));
}

/// So that the one that waits in a form goes on.
void CloseAllBut(const std::vector<HWND>& before) {
  WaitUntil([&] {
    bool closed = true;
    for (HWND window : VisibleWindows()) {
      if (std::ranges::find(before, window) != before.end()) continue;
      closed = false;
      if (IsWindowEnabled(window) != FALSE) PostMessageW(window, WM_CLOSE, 0, 0);
    }
    return closed;
  });
}

}  // namespace

void HandOutMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void Meanwhile(const std::function<void()>& act, const std::function<void()>& show) {
  const std::vector<HWND> before = VisibleWindows();
  std::atomic<bool> returned = false;
  std::thread person([&] {
    act();
    const auto end = GetTickCount64() + 5000;
    while (!returned && GetTickCount64() < end) Sleep(5);
    EXPECT_TRUE(returned) << "a form is still open";
    if (!returned) CloseAllBut(before);
  });
  show();
  returned = true;
  person.join();
  HandOutMessages();
}

void WhilePumping(const std::function<void()>& act) {
  std::atomic<bool> done = false;
  std::thread person([&] {
    act();
    done = true;
  });
  while (!done) {
    HandOutMessages();
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
  person.join();
  // What the last click or key has set off.
  constexpr DWORD kAwaited = QS_ALLINPUT & ~static_cast<DWORD>(QS_TIMER);
  do {
    HandOutMessages();
  } while (MsgWaitForMultipleObjects(0, nullptr, FALSE, 60, kAwaited) == WAIT_OBJECT_0);
}

HWND WaitForForm(const std::wstring& title) {
  HWND found = nullptr;
  EXPECT_TRUE(WaitUntil([&] {
    for (HWND window : VisibleWindows()) {
      if (TextOf(window) == title && IsWindowEnabled(window) != FALSE) found = window;
    }
    return found != nullptr;
  })) << "no window is titled "
      << testing::PrintToString(title);
  return found;
}

bool WaitUntilGone(HWND window) {
  return WaitUntil([&] { return IsWindow(window) == FALSE || IsWindowVisible(window) == FALSE; });
}

HWND ButtonOf(HWND form, const std::wstring& caption) {
  for (HWND part : PartsOf(form)) {
    const bool fits = IsControl(part, L"Button") && TextOf(part) == caption;
    if (fits && IsWindowVisible(part) != FALSE) return part;
  }
  return nullptr;
}

HWND PartOf(HWND form, const std::wstring& className, int number) {
  std::vector<HWND> parts = PartsOf(form);
  std::erase_if(parts, [&](HWND part) { return !IsControl(part, className); });
  std::ranges::sort(parts, {}, GetDlgCtrlID);
  const auto index = static_cast<std::size_t>(number) - 1;
  return index < parts.size() ? parts[index] : nullptr;
}

std::vector<std::wstring> TextsOf(HWND form, const std::wstring& className) {
  std::vector<std::wstring> texts;
  for (int i = 1; HWND part = PartOf(form, className, i); ++i) {
    if (IsWindowVisible(part) != FALSE) texts.push_back(TextOf(part));
  }
  return texts;
}

std::wstring Focused(HWND form) {
  const HWND focus = FocusOf(form);
  if (focus == nullptr || IsChild(form, focus) == FALSE) return {};
  const std::wstring className = ClassOf(focus);
  if (className == L"Button" && !TextOf(focus).empty()) return TextOf(focus);
  int number = 1;
  while (PartOf(form, className, number) != nullptr && PartOf(form, className, number) != focus) {
    ++number;
  }
  return className + L" " + std::to_wstring(number);
}

std::vector<std::wstring> TabThrough(HWND form, int presses) {
  EXPECT_TRUE(WaitUntil([&] { return !Focused(form).empty(); }));
  std::vector<std::wstring> names = {Focused(form)};
  for (int i = 0; i < presses; ++i) {
    PressKeys(form, {VK_TAB});
    WaitUntil([&] { return Focused(form) != names.back(); });
    names.push_back(Focused(form));
  }
  return names;
}

void PressKeys(HWND form, std::initializer_list<WORD> keys) {
  EXPECT_TRUE(WaitUntil([&] {
    const HWND focus = FocusOf(form);
    return GetForegroundWindow() == form && (focus == form || IsChild(form, focus) != FALSE);
  })) << "the form isn't in front";
  Send(KeysTogether(keys));
}

void Type(HWND form, const std::string& text) {
  for (const char letter : text) {
    PressKeys(form, {static_cast<WORD>(std::toupper(static_cast<unsigned char>(letter)))});
  }
}

void Click(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  Click(window, {area.right / 2, area.bottom / 2});
}

void Click(HWND window, POINT point) { ClickTimes(window, point, 1); }

void DoubleClick(HWND window, POINT point) { ClickTimes(window, point, 2); }

}  // namespace rangewerks::tests
