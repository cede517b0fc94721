#include "systems/windows/text.h"

#include <windows.h>

namespace rangewerks::systems {

namespace {

std::string Narrow(UINT codePage, std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const auto convert = [&](char* to, int size) {
    return WideCharToMultiByte(codePage, 0, text.data(), length, to, size, nullptr, nullptr);
  };
  std::string converted(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(converted.data(), static_cast<int>(converted.size()));
  return converted;
}

std::wstring Widen(UINT codePage, std::string_view text) {
  const int length = static_cast<int>(text.size());
  const auto convert = [&](wchar_t* to, int size) {
    return MultiByteToWideChar(codePage, 0, text.data(), length, to, size);
  };
  std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
  convert(wide.data(), static_cast<int>(wide.size()));
  return wide;
}

}  // namespace

std::string Utf8Of(std::wstring_view text) { return Narrow(CP_UTF8, text); }

std::wstring Utf16Of(std::string_view utf8) { return Widen(CP_UTF8, utf8); }

std::string Utf8OfAnsi(std::string_view text) { return Utf8Of(Widen(CP_ACP, text)); }

std::string AnsiOf(std::string_view utf8) { return Narrow(CP_ACP, Utf16Of(utf8)); }

}  // namespace rangewerks::systems
