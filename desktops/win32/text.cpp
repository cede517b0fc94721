#include "desktops/win32/text.h"

#include <windows.h>

namespace rangewerks::desktops {

std::wstring Utf16Of(std::string_view utf8) {
  const int length = static_cast<int>(utf8.size());
  const auto convert = [&](wchar_t* to, int size) {
    return MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, to, size);
  };
  std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
  convert(wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Utf8Of(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const auto convert = [&](char* to, int size) {
    return WideCharToMultiByte(CP_UTF8, 0, text.data(), length, to, size, nullptr, nullptr);
  };
  std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(utf8.data(), static_cast<int>(utf8.size()));
  return utf8;
}

}  // namespace rangewerks::desktops
