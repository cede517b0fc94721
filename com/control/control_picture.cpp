#include "com/control/control_picture.h"

#include <algorithm>
#include <memory>
#include <type_traits>

#include "com/bridge/failures.h"

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

/// A device in memory with an area of pixels. Raises the system's failure.
class Canvas {
 public:
  Canvas(HDC like, int width, int height)
      : device_(CreateCompatibleDC(like)), bitmap_(CreateCompatibleBitmap(like, width, height)) {
    if (device_ == nullptr || bitmap_ == nullptr) throw FailureOf(E_OUTOFMEMORY);
    before_ = SelectObject(device_.get(), bitmap_.get());
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas() { SelectObject(device_.get(), before_); }

  HDC Device() const { return device_.get(); }

 private:
  OwnedDevice device_;
  OwnedBitmap bitmap_;
  HGDIOBJ before_ = nullptr;
};

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

/// The inside of a window by itself. It is asked on a device of its own, with its corner at (0, 0):
/// some windows take the pixels of the device for those of their own. Those that don't cover their
/// ground see what is below.
void DrawInside(HWND window, HDC device, const RECT& inside) {
  const int width = inside.right - inside.left;
  const int height = inside.bottom - inside.top;
  if (width <= 0 || height <= 0) return;
  const Canvas canvas(device, width, height);
  BitBlt(canvas.Device(), 0, 0, width, height, device, inside.left, inside.top, SRCCOPY);
  const auto target = reinterpret_cast<WPARAM>(canvas.Device());
  SendMessageW(window, WM_ERASEBKGND, target, 0);
  SendMessageW(window, WM_PRINTCLIENT, target, PRF_CLIENT | PRF_ERASEBKGND);
  BitBlt(device, inside.left, inside.top, width, height, canvas.Device(), 0, 0, SRCCOPY);
}

/// The window itself and then, from the bottom up, those on it. Hidden windows get no WM_PAINT, and
/// not every WM_PRINT goes down to the children, so each is asked by itself.
void DrawAll(HWND window, HWND origin, HDC device) {
  DrawBorder(window, device, OuterPlace(window, origin));
  const RECT inside = InnerPlace(window, origin);
  DrawInside(window, device, inside);
  const SavedState saved(device);
  IntersectClipRect(device, inside.left, inside.top, inside.right, inside.bottom);
  HWND child = GetWindow(window, GW_CHILD);
  if (child != nullptr) child = GetWindow(child, GW_HWNDLAST);
  for (; child != nullptr; child = GetWindow(child, GW_HWNDPREV)) {
    if ((GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0) DrawAll(child, origin, device);
  }
}

}  // namespace

void DrawWindow(HWND window, HDC target, const RECT& place) {
  RECT inside{};
  GetClientRect(window, &inside);
  const OwnedDevice screen(CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr));
  const Canvas canvas(screen.get(), std::max<int>(inside.right, 1),
                      std::max<int>(inside.bottom, 1));
  DrawAll(window, window, canvas.Device());
  const int mode = SetStretchBltMode(target, HALFTONE);
  const BOOL drawn =
      StretchBlt(target, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 canvas.Device(), 0, 0, inside.right, inside.bottom, SRCCOPY);
  SetStretchBltMode(target, mode);
  if (drawn == FALSE) throw FailureOf(E_FAIL);
}

}  // namespace rangewerks::com
