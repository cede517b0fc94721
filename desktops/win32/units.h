// Lengths between the library's twips (1440 to an inch) and pixels. Private to this folder's
// sources.
#pragma once

#include <windows.h>

#include "forms/control.h"

namespace rangewerks::desktops {

inline constexpr int kTwipsPerInch = 1440;
/// What Windows calls 100 %.
inline constexpr int kStandardDpi = 96;

/// To the nearest pixel.
int ToPixels(double twips, int dpi);
double ToTwips(int pixels, int dpi);

/// A rectangle in pixels. Width and height are rounded for themselves, so that controls of one size
/// look alike wherever they stand.
RECT ToPixels(const forms::Place& place, int dpi);

/// Pixels per inch on the monitor of a window, or of the screen as a whole where Windows doesn't
/// tell them apart.
int DpiOf(HWND window);
int DpiOfScreen();

inline int WidthOf(const RECT& rectangle) { return rectangle.right - rectangle.left; }
inline int HeightOf(const RECT& rectangle) { return rectangle.bottom - rectangle.top; }

}  // namespace rangewerks::desktops
