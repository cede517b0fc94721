#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {

std::string ToUtf8(const OUString& text) {
  const rtl::OString bytes = rtl::OUStringToOString(text, RTL_TEXTENCODING_UTF8);
  return {bytes.getStr(), static_cast<std::size_t>(bytes.getLength())};
}

OUString ToUno(std::string_view text) {
  return OUString(text.data(), static_cast<sal_Int32>(text.size()), RTL_TEXTENCODING_UTF8);
}

}  // namespace rangewerks::hosts::libreoffice
