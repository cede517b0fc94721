// A control's life inside a container's window. Private to this folder.
#pragma once

#include <oleidl.h>
#include <windows.h>

#include "com/control/control_parts.h"

namespace rangewerks::com {

/// Inactive, active (its window is shown), or active with the user interface (it has the keyboard).
class InPlace {
 public:
  /// `active` is what the container's frame is told to hand keys to.
  InPlace(ControlParts& parts, IOleInPlaceActiveObject& active) : parts_(parts), active_(active) {}
  InPlace(const InPlace&) = delete;
  InPlace& operator=(const InPlace&) = delete;
  ~InPlace();

  bool IsActive() const { return static_cast<bool>(site_); }
  bool HasUserInterface() const { return hasUserInterface_; }

  /// Where the control goes with the user interface: to its first field, or where the person has
  /// just clicked.
  enum class Focus { Take, Leave };
  /// Raises what the container refuses.
  void Activate();
  void ActivateUserInterface(Focus focus);
  void DeactivateUserInterface();
  void Deactivate();
  /// Both in pixels of the container's window; what lies outside `clip` isn't seen.
  void SetPlace(const RECT& place, const RECT& clip);

 private:
  void BeginWatch();
  void EndWatch();
  static LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM first, LPARAM second);
  void WindowIsGone();

  ControlParts& parts_;
  IOleInPlaceActiveObject& active_;
  Pointer<IOleInPlaceSite> site_;
  Pointer<IOleInPlaceFrame> frame_;
  Pointer<IOleInPlaceUIWindow> document_;
  HWND window_ = nullptr;
  WNDPROC watched_ = nullptr;  // what the window does by itself
  bool hasUserInterface_ = false;
};

}  // namespace rangewerks::com
