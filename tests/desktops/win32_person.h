// Somebody who answers a dialog: a second thread, for the first waits in the dialog.
//
//   const Person person([](HWND dialog) { Press(dialog, IDCANCEL); });
//   EXPECT_EQ(ShowMessageBox(message, nullptr), Answer::Cancel);
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <thread>

namespace rangewerks::tests {

/// Waits until this program shows a dialog, at most a quarter of a minute, and then acts on it.
/// Adds a failure to the test when none comes. The end waits for the person to be done.
class Person {
 public:
  explicit Person(std::function<void(HWND dialog)> act);
  Person(const Person&) = delete;
  Person& operator=(const Person&) = delete;
  ~Person() { thread_.join(); }

 private:
  std::thread thread_;
};

/// Tries until it holds. False when it still doesn't after a quarter of a minute.
bool WaitUntil(const std::function<bool()>& condition);

/// The dialog that this program shows in front of `owner`, once there is one; null after a quarter
/// of a minute. Without an owner, any dialog.
HWND WaitForDialog(HWND owner = nullptr);

/// Presses a button of a dialog, once it can be pressed.
void Press(HWND dialog, int id);
/// Types a key where the keyboard is, once that is in the dialog.
void TypeKey(HWND dialog, WPARAM key);
void Write(HWND dialog, int id, const std::wstring& text);
std::wstring TextOf(HWND window);
std::wstring TextOf(HWND dialog, int id);
std::wstring ClassOf(HWND window);

}  // namespace rangewerks::tests
