#include "com/control/control_picture.h"

#include <memory>
#include <type_traits>

namespace rangewerks::com {

namespace {

struct DeviceDeleter {
  void operator()(HDC device) const noexcept { DeleteDC(device); }
};
struct BitmapDeleter {
  void operator()(HBITMAP bitmap) const noexcept { DeleteObject(bitmap); }
};
using OwnedDevice = std::unique_ptr<std::remove_pointer_t<HDC>, DeviceDeleter>;
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter>;

/// A state of a device that is put back at the end.
class SavedState {
 public:
  explicit SavedState(HDC device) : device_(device), state_(SaveDC(device)) {}
  SavedState(const SavedState&) = delete;
  SavedState& operator=(const SavedState&) = delete;
  ~SavedState() { RestoreDC(device_, state_); }

 private:
  HDC device_;
  int state_;
};

/// Where a window lies, its border and its inside, when `origin` is at (0, 0).
RECT OuterPlace(HWND window, HWND origin) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, origin, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

RECT InnerPlace(HWND window, HWND origin) {
  RECT place{};
  GetClientRect(window, &place);
  MapWindowPoints(window, origin, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

void DrawBorder(HWND window, HDC device, RECT place) {
  if ((GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0) {
    DrawEdge(device, &place, EDGE_SUNKEN, BF_RECT);
  } else if ((GetWindowLongW(window, GWL_STYLE) & WS_BORDER) != 0) {
    FrameRect(device, &place, GetSysColorBrush(COLOR_WINDOWFRAME));
  }
}

/// The window itself and then, from the bottom up, those on it. Hidden windows get no WM_PAINT, and
/// not every WM_PRINT goes down to the children, so each is asked by itself.
void DrawAll(HWND window, HWND origin, HDC device) {
  DrawBorder(window, device, OuterPlace(window, origin));
  const RECT inside = InnerPlace(window, origin);
  const SavedState saved(device);
  IntersectClipRect(device, inside.left, inside.top, inside.right, inside.bottom);
  {
    const SavedState unmoved(device);
    OffsetViewportOrgEx(device, inside.left, inside.top, nullptr);
    SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(device), 0);
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(device),
                 PRF_CLIENT | PRF_ERASEBKGND);
  }
  HWND child = GetWindow(window, GW_CHILD);
  if (child != nullptr) child = GetWindow(child, GW_HWNDLAST);
  for (; child != nullptr; child = GetWindow(child, GW_HWNDPREV)) {
    if ((GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0) DrawAll(child, origin, device);
  }
}

}  // namespace

bool DrawWindow(HWND window, HDC target, const RECT& place) {
  RECT inside{};
  GetClientRect(window, &inside);
  const OwnedDevice screen(CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr));
  const OwnedDevice device(CreateCompatibleDC(screen.get()));
  const OwnedBitmap bitmap(CreateCompatibleBitmap(screen.get(), inside.right, inside.bottom));
  if (device == nullptr || bitmap == nullptr) return false;
  const SavedState saved(device.get());
  SelectObject(device.get(), bitmap.get());
  DrawAll(window, window, device.get());
  const SavedState targetSaved(target);
  SetStretchBltMode(target, HALFTONE);
  SetBrushOrgEx(target, 0, 0, nullptr);
  return StretchBlt(target, place.left, place.top, place.right - place.left,
                    place.bottom - place.top, device.get(), 0, 0, inside.right, inside.bottom,
                    SRCCOPY) != FALSE;
}

}  // namespace rangewerks::com
