// The hints that appear when the mouse rests on a control. Private to this folder's sources.
#pragma once

#include <windows.h>

#include <string>

namespace rangewerks::desktops {

class ToolTips {
 public:
  ToolTips() = default;
  ToolTips(const ToolTips&) = delete;
  ToolTips& operator=(const ToolTips&) = delete;
  ~ToolTips() { Close(); }

  /// Makes the window that all hints of a form are shown in.
  void Open(int maximumWidth);
  void Close();
  /// An empty text takes the hint away.
  void Set(HWND form, HWND control, const std::string& text);

 private:
  HWND window_ = nullptr;
};

}  // namespace rangewerks::desktops
