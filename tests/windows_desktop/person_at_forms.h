// A person at the windows that this program shows: sees texts, types and clicks, on a second
// thread, for the first waits in a form or hands out messages as a host does.
//
//   Meanwhile(
//       [] {
//         const HWND form = WaitForForm(L"Select Date");
//         PressKeys(form, {VK_RETURN});
//         EXPECT_TRUE(WaitUntilGone(form));
//       },
//       [&] { browse->BrowseDate(); });
#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "desktops/win32_person.h"

namespace rangewerks::tests {

/// Runs `show`, which returns when the person has closed what it shows, and `act` meanwhile. What
/// is still open when the person is done is closed, and fails the test.
void Meanwhile(const std::function<void()>& act, const std::function<void()>& show);
/// Hands out messages as a host does while the person acts, and those that are left afterwards.
void WhilePumping(const std::function<void()>& act);
/// Hands out what has come.
void HandOutMessages();

/// The visible window with that title, once it can be used; null after a quarter of a minute.
HWND WaitForForm(const std::wstring& title);
bool WaitUntilGone(HWND window);

/// The visible button with that caption; null when there is none.
HWND ButtonOf(HWND form, const std::wstring& caption);
/// The n-th control of a class in the order of the form's declaration, from 1, seen or not.
HWND PartOf(HWND form, const std::wstring& className, int number);
/// The texts of the visible controls of a class, in their order.
std::vector<std::wstring> TextsOf(HWND form, const std::wstring& className);
/// Who has the keyboard: a button's caption, or else class and number as for PartOf.
std::wstring Focused(HWND form);
/// Who has the keyboard now, and after each of so many presses of Tab.
std::vector<std::wstring> TabThrough(HWND form, int presses);

/// Presses keys together, once the form is in front and has the keyboard.
void PressKeys(HWND form, std::initializer_list<WORD> keys);
/// Types letters and digits.
void Type(HWND form, const std::string& text);
/// Clicks in the middle, or at a point of the inner area.
void Click(HWND window);
void Click(HWND window, POINT point);
void DoubleClick(HWND window, POINT point);

}  // namespace rangewerks::tests
