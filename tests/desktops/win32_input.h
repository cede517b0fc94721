// Keys and clicks for the system's queue, from where they come as a person's do.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <vector>

namespace rangewerks::tests {

/// Presses keys one after the other and lets them go in the other order.
std::vector<INPUT> KeysTogether(std::initializer_list<WORD> keys);
/// Presses the left button of the mouse and lets it go, so many times.
std::vector<INPUT> Clicks(int times);
/// Puts them into the queue and doesn't wait.
void Send(std::vector<INPUT> input);
/// Moves the mouse to a point of a window's inner area.
void PointAt(HWND window, POINT point);

}  // namespace rangewerks::tests
