#include "systems/windows/text.h"

#include <windows.h>

#include "automation/utf16.h"

namespace rangewerks::systems {

std::string Utf8Of(std::wstring_view text) { return automation::Utf8Of<wchar_t>(text); }

std::wstring Utf16Of(std::string_view utf8) { return automation::Utf16Of<wchar_t>(utf8); }

std::string Utf8OfAnsi(std::string_view text) {
  const int length = static_cast<int>(text.size());
  const auto convert = [&](wchar_t* to, int size) {
    return MultiByteToWideChar(CP_ACP, 0, text.data(), length, to, size);
  };
  std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
  convert(wide.data(), static_cast<int>(wide.size()));
  return Utf8Of(wide);
}

std::string AnsiOf(std::string_view utf8) {
  const std::wstring wide = Utf16Of(utf8);
  const int length = static_cast<int>(wide.size());
  const auto convert = [&](char* to, int size) {
    return WideCharToMultiByte(CP_ACP, 0, wide.data(), length, to, size, nullptr, nullptr);
  };
  std::string ansi(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(ansi.data(), static_cast<int>(ansi.size()));
  return ansi;
}

}  // namespace rangewerks::systems
