// Texts between Windows' UTF-16 or the code page and UTF-8. Private to this folder's sources.
#pragma once

#include <string>
#include <string_view>

namespace rangewerks::systems {

std::string Utf8Of(std::wstring_view text);
std::wstring Utf16Of(std::string_view utf8);
/// A text in the code page of the system (ANSI).
std::string Utf8OfAnsi(std::string_view text);
/// The other way: what the code page lacks becomes "?".
std::string AnsiOf(std::string_view utf8);

}  // namespace rangewerks::systems
