#include "desktops/win32/tool_tips.h"

// The common controls need what comes before.
#include <commctrl.h>

#include "desktops/win32/text.h"
#include "desktops/win32/visual_styles.h"

namespace rangewerks::desktops {

// Without an owner: Wine can't bring a window above all others that owns another.
void ToolTips::Open(int maximumWidth) {
  window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                            WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                            CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, ThisModule(), nullptr);
  // Only with a width are long texts broken into lines.
  SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, maximumWidth);
}

void ToolTips::Close() {
  if (window_ != nullptr) DestroyWindow(window_);
  window_ = nullptr;
}

void ToolTips::Set(HWND form, HWND control, const std::string& text) {
  std::wstring wide = Utf16Of(text);
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;  // what all editions of the control take
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = form;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = wide.data();
  SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (!text.empty()) SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace rangewerks::desktops
