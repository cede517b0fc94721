#include "desktops/win32/units.h"

#include <cmath>

#include "desktops/win32/newer_windows.h"

namespace rangewerks::desktops {

int ToPixels(double twips, int dpi) {
  return static_cast<int>(std::lround(twips * dpi / kTwipsPerInch));
}

double ToTwips(int pixels, int dpi) { return static_cast<double>(pixels) * kTwipsPerInch / dpi; }

RECT ToPixels(const forms::Place& place, int dpi) {
  const int left = ToPixels(place.left, dpi);
  const int top = ToPixels(place.top, dpi);
  return {left, top, left + ToPixels(place.width, dpi), top + ToPixels(place.height, dpi)};
}

int DpiOfScreen() {
  HDC screen = GetDC(nullptr);
  if (screen == nullptr) return kStandardDpi;
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : kStandardDpi;
}

int DpiOf(HWND window) {
  static const auto ask = UserFunction<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
  const auto dpi = ask != nullptr ? static_cast<int>(ask(window)) : 0;
  return dpi > 0 ? dpi : DpiOfScreen();
}

}  // namespace rangewerks::desktops
