// Texts between the library's UTF-8 and COM's UTF-16.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>
#include <string_view>

namespace rangewerks::com {

/// A text of UTF-16 in UTF-8. Half a surrogate pair, which COM texts may hold, is kept as three
/// bytes of its own and comes back unchanged from ToWide.
std::string FromWide(std::wstring_view text);
std::wstring ToWide(std::string_view text);

/// The text of a BSTR, which may hold NUL characters; a null one is the empty text.
std::string FromBstr(BSTR text);
/// A new BSTR, which the caller frees. Throws std::bad_alloc.
BSTR ToBstr(std::string_view text);

/// A BSTR that is freed at the end.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::string_view text) : text_(ToBstr(text)) {}
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(text_); }

  BSTR Get() const noexcept { return text_; }
  BSTR* Receive() noexcept {
    SysFreeString(text_);
    text_ = nullptr;
    return &text_;
  }
  std::string Text() const { return FromBstr(text_); }

 private:
  BSTR text_ = nullptr;
};

}  // namespace rangewerks::com
