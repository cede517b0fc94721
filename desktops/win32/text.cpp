#include "desktops/win32/text.h"

#include "automation/utf16.h"

namespace rangewerks::desktops {

std::wstring Utf16Of(std::string_view utf8) { return automation::Utf16Of<wchar_t>(utf8); }

std::string Utf8Of(std::wstring_view text) { return automation::Utf8Of<wchar_t>(text); }

}  // namespace rangewerks::desktops
