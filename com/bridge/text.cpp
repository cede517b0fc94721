#include "com/bridge/text.h"

#include <new>

#include "automation/utf16.h"

namespace rangewerks::com {

std::string FromWide(std::wstring_view text) { return automation::Utf8Of<wchar_t>(text); }

std::wstring ToWide(std::string_view text) { return automation::Utf16Of<wchar_t>(text); }

std::string FromBstr(BSTR text) { return FromWide({text, SysStringLen(text)}); }

BSTR ToBstr(std::string_view text) {
  const std::wstring wide = ToWide(text);
  BSTR result = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (result == nullptr) throw std::bad_alloc();
  return result;
}

}  // namespace rangewerks::com
