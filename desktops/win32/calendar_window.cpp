#include "desktops/win32/calendar_window.h"

#include <algorithm>
#include <utility>

#include "desktops/win32/units.h"

namespace rangewerks::desktops {

namespace {

/// With less Windows cuts the month off, at the standard resolution.
constexpr int kLeastWidth = 240;
/// Day 0 of the library is 30 December 1899, that of Windows 1 January 1601.
constexpr double kDaysBetween = 109205;
constexpr double kTicksPerDay = 864'000'000'000.0;

SYSTEMTIME ToSystemTime(double serial) {
  ULARGE_INTEGER ticks{};
  ticks.QuadPart = static_cast<ULONGLONG>((serial + kDaysBetween) * kTicksPerDay);
  const FILETIME file{ticks.LowPart, ticks.HighPart};
  SYSTEMTIME time{};
  FileTimeToSystemTime(&file, &time);
  return time;
}

double ToSerial(SYSTEMTIME day) {
  day.wHour = day.wMinute = day.wSecond = day.wMilliseconds = 0;
  FILETIME file{};
  SystemTimeToFileTime(&day, &file);
  ULARGE_INTEGER ticks{};
  ticks.LowPart = file.dwLowDateTime;
  ticks.HighPart = file.dwHighDateTime;
  return static_cast<double>(ticks.QuadPart) / kTicksPerDay - kDaysBetween;
}

/// How far an arrow key leads.
std::optional<int> DaysOf(WPARAM key) {
  switch (key) {
    case VK_LEFT:
      return -1;
    case VK_RIGHT:
      return 1;
    case VK_UP:
      return -7;
    case VK_DOWN:
      return 7;
    default:
      return std::nullopt;
  }
}

}  // namespace

CalendarWindow::CalendarWindow(Surroundings& around, forms::Calendar& calendar, HWND parent, int id)
    : ControlWindow(around, calendar, parent, id,
                    {.className = MONTHCAL_CLASSW, .style = WS_TABSTOP}),
      calendar_(calendar) {}

void CalendarWindow::ApplyPlace() {
  RECT place = ToPixels(Shown().Properties().place, Around().dpi);
  RECT needed{};
  SendMessageW(Handle(), MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&needed));
  const int least = std::max(MulDiv(kLeastWidth, Around().dpi, kStandardDpi), WidthOf(needed));
  SetWindowPos(Handle(), nullptr, place.left, place.top, std::max(WidthOf(place), least),
               std::max(HeightOf(place), HeightOf(needed)), SWP_NOZORDER | SWP_NOACTIVATE);
}

void CalendarWindow::ApplyContent() {
  const double day = calendar_.Day().serial;
  if (day > -kDaysBetween) {
    SYSTEMTIME shown = ToSystemTime(day);
    if (SendMessageW(Handle(), MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&shown)) != 0) return;
  }
  // Windows knows no such day. The person must get the one that they see.
  calendar_.PersonChose({ShownDay()});
}

double CalendarWindow::ShownDay() const {
  SYSTEMTIME shown{};
  SendMessageW(Handle(), MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&shown));
  return ToSerial(shown);
}

std::optional<LRESULT> CalendarWindow::Notified(NMHDR& notification) {
  if (IsApplying()) return std::nullopt;
  const auto& change = reinterpret_cast<const NMSELCHANGE&>(notification);
  switch (notification.code) {
    case static_cast<UINT>(MCN_SELCHANGE):
      calendar_.PersonChose({ToSerial(change.stSelStart)});
      return 0;
    case static_cast<UINT>(MCN_SELECT):
      Clicked(change.stSelStart);
      return 0;
    default:
      return std::nullopt;
  }
}

// Not every system's calendar knows keys.
bool CalendarWindow::TakeKey(const MSG& message) {
  const std::optional<int> days = DaysOf(message.wParam);
  if (message.message != WM_KEYDOWN || !days || GetKeyState(VK_CONTROL) < 0) return false;
  calendar_.PersonChose({ShownDay() + *days});
  Apply(forms::Aspect::Content);
  return true;
}

// The control tells of single clicks only.
void CalendarWindow::Clicked(const SYSTEMTIME& day) {
  const double serial = ToSerial(day);
  const LONG now = GetMessageTime();
  const LONG before = std::exchange(clickedAt_, now);
  const bool again = std::exchange(clickedDay_, serial) == serial &&
                     static_cast<DWORD>(now - before) <= GetDoubleClickTime();
  calendar_.PersonChose({serial});
  if (!again) return;
  clickedDay_.reset();  // a third click begins anew
  calendar_.PersonDoubleClicked();
}

}  // namespace rangewerks::desktops
