// The hands of a person at a form: keys and clicks as the system delivers them, and a message loop
// that knows nothing of forms, as a host's.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "forms/form.h"

namespace rangewerks::tests {

/// Hands out the messages that have come.
void HandOut();
/// Hands out messages until none has come for a moment.
void Settle();
/// Hands out messages until it holds. False when it still doesn't after a quarter of a minute.
bool SettleUntil(const std::function<bool()>& condition);

/// Puts keys into the system's queue and doesn't wait: for what opens a loop of its own, as menus
/// do. Each group is held together.
void QueueKeys(std::initializer_list<std::initializer_list<WORD>> groups);
/// Presses keys one after the other and lets them go in the other order, then settles.
void PressKeys(std::initializer_list<WORD> keys);
inline void PressKey(WORD key) { PressKeys({key}); }
/// Clicks with the left button at a point of a window's inner area, then settles.
void Click(HWND window, POINT point);
void DoubleClick(HWND window, POINT point);
/// Clicks in the middle.
void Click(HWND window);
POINT MiddleOf(const RECT& area);

/// The form's window, and that of a control; null when there is none.
HWND WindowOf(const forms::Form& form);
HWND WindowOf(const forms::Control& control);
/// The name of the control that has the keyboard; empty when none of the form's has it.
std::string Focused(forms::Form& form);

RECT InnerArea(HWND window);
/// The colour of a pixel of a window's inner area, as it was painted.
COLORREF PixelAt(HWND window, POINT point);
/// Whether a pixel of the window has exactly that colour.
bool ShowsColour(HWND window, COLORREF colour);

}  // namespace rangewerks::tests
