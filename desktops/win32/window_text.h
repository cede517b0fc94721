// What a window has as its text. Private to this folder's sources.
#pragma once

#include <windows.h>

#include <string>

namespace rangewerks::desktops {

inline std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace rangewerks::desktops
