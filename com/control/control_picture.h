// A control's looks on any device, whether its window is shown or not. Private to this folder.
#pragma once

#include <windows.h>

namespace rangewerks::com {

/// Draws a window with all that stands on it into a rectangle of a device, stretched to fit. Raises
/// the failure of a system that refuses.
void DrawWindow(HWND window, HDC target, const RECT& place);

}  // namespace rangewerks::com
