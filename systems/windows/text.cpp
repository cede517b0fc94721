#include "systems/windows/text.h"

#include <windows.h>

namespace rangewerks::systems {

std::string Utf8Of(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const auto convert = [&](char* to, int size) {
    return WideCharToMultiByte(CP_UTF8, 0, text.data(), length, to, size, nullptr, nullptr);
  };
  std::string converted(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(converted.data(), static_cast<int>(converted.size()));
  return converted;
}

std::string Utf8OfAnsi(std::string_view text) {
  const int length = static_cast<int>(text.size());
  const auto convert = [&](wchar_t* to, int size) {
    return MultiByteToWideChar(CP_ACP, 0, text.data(), length, to, size);
  };
  std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
  convert(wide.data(), static_cast<int>(wide.size()));
  return Utf8Of(wide);
}

}  // namespace rangewerks::systems
