#include "desktops/win32_person.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <utility>

namespace rangewerks::tests {

namespace {

struct Search {
  HWND owner = nullptr;
  HWND found = nullptr;
};

BOOL CALLBACK Consider(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != GetCurrentProcessId() || IsWindowVisible(window) == 0) return TRUE;
  if (ClassOf(window) != L"#32770") return TRUE;
  if (search.owner != nullptr && GetWindow(window, GW_OWNER) != search.owner) return TRUE;
  search.found = window;
  return FALSE;
}

}  // namespace

bool WaitUntil(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(15);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

HWND WaitForDialog(HWND owner) {
  Search search{.owner = owner};
  WaitUntil([&] {
    EnumWindows(Consider, reinterpret_cast<LPARAM>(&search));
    return search.found != nullptr;
  });
  return search.found;
}

Person::Person(std::function<void(HWND dialog)> act)
    : thread_([act = std::move(act)] {
        const HWND dialog = WaitForDialog();
        if (dialog == nullptr) {
          ADD_FAILURE() << "no dialog has come";
          return;
        }
        act(dialog);
      }) {}

void Press(HWND dialog, int id) {
  EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(GetDlgItem(dialog, id)) != 0; })) << id;
  PostMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

void TypeKey(HWND dialog, WPARAM key) {
  GUITHREADINFO state{};
  state.cbSize = sizeof(state);
  EXPECT_TRUE(WaitUntil([&] {
    GetGUIThreadInfo(GetWindowThreadProcessId(dialog, nullptr), &state);
    return IsChild(dialog, state.hwndFocus) != 0;
  }));
  PostMessageW(state.hwndFocus, WM_KEYDOWN, key, 1);
}

void Write(HWND dialog, int id, const std::wstring& text) {
  EXPECT_NE(SetDlgItemTextW(dialog, id, text.c_str()), 0) << id;
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::wstring TextOf(HWND dialog, int id) { return TextOf(GetDlgItem(dialog, id)); }

std::wstring ClassOf(HWND window) {
  std::array<wchar_t, 64> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

}  // namespace rangewerks::tests
