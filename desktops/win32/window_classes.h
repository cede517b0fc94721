// The two classes of windows that are this desktop's own. Private to this folder's sources.
#pragma once

#include <windows.h>

namespace rangewerks::desktops {

inline constexpr const wchar_t* kFormClass = L"RangewerksForm";
inline constexpr const wchar_t* kPanelClass = L"RangewerksPanel";

/// The classes are known to Windows while at least one of these lives, on any thread.
class WindowClasses {
 public:
  /// `form` handles the messages of forms.
  explicit WindowClasses(WNDPROC form);
  WindowClasses(const WindowClasses&) = delete;
  WindowClasses& operator=(const WindowClasses&) = delete;
  ~WindowClasses();
};

}  // namespace rangewerks::desktops
