// What a form's window notes while it works. Private to this folder's sources.
#pragma once

#include "desktops/win32/win32_form_window.h"

namespace rangewerks::desktops {

inline constexpr UINT kEndYourself = WM_APP + 1;

/// One call of the window's object that isn't over; its window doesn't go meanwhile.
class Win32FormWindow::AtWork {
 public:
  explicit AtWork(Win32FormWindow& window) : window_(window) { ++window_.atWork_; }
  AtWork(const AtWork&) = delete;
  AtWork& operator=(const AtWork&) = delete;
  /// What was closed meanwhile goes with a message: the control whose notification this was may
  /// still be at work itself.
  ~AtWork() {
    if (--window_.atWork_ > 0 || !window_.closed_ || window_.window_ == nullptr) return;
    if (!window_.endPosted_) PostMessageW(window_.window_, kEndYourself, 0, 0);
    window_.endPosted_ = true;
  }

 private:
  Win32FormWindow& window_;
};

/// A change of the window's place by code.
class Win32FormWindow::OwnChange {
 public:
  explicit OwnChange(Win32FormWindow& window) : window_(window) { ++window_.ownChanges_; }
  OwnChange(const OwnChange&) = delete;
  OwnChange& operator=(const OwnChange&) = delete;
  ~OwnChange() { --window_.ownChanges_; }

 private:
  Win32FormWindow& window_;
};

}  // namespace rangewerks::desktops
