#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {

std::string ToUtf8(const OUString& text) {
  const rtl::OString bytes = rtl::OUStringToOString(text, RTL_TEXTENCODING_UTF8);
  return {bytes.getStr(), static_cast<std::size_t>(bytes.getLength())};
}

OUString ToUno(std::string_view text) {
  return {text.data(), static_cast<sal_Int32>(text.size()), RTL_TEXTENCODING_UTF8};
}

}  // namespace rangewerks::hosts::libreoffice

#ifdef __SANITIZE_ADDRESS__
/// The headers of the office's interfaces keep one description of each type for the life of the
/// process, and UNO's tables hang on these; the leak detector is told here, so that every program
/// with this host has the same exception and no other.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:com::sun::star::uno::Type::operator new\n"
         "leak:cppu_detail_getUnoType\n"
         "leak:libuno_cppu.so\n"
         "leak:libuno_sal.so\n";
}
/// What was let pass is no message of the program's.
extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }
#endif
