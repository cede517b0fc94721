// Texts between the library's UTF-8 and the UTF-16 of windows. Private to this folder's sources.
#pragma once

#include <string>
#include <string_view>

namespace rangewerks::desktops {

std::wstring Utf16Of(std::string_view utf8);
std::string Utf8Of(std::wstring_view text);

}  // namespace rangewerks::desktops
