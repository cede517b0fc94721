#include "com/bridge/text.h"

#include <cstdint>
#include <new>

namespace rangewerks::com {
namespace {

static_assert(sizeof(wchar_t) == 2);

bool IsHighSurrogate(char32_t code) { return code >= 0xD800 && code < 0xDC00; }
bool IsLowSurrogate(char32_t code) { return code >= 0xDC00 && code < 0xE000; }

void AppendUtf8(std::string& text, char32_t code) {
  const auto append = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (code < 0x80) {
    append(code);
  } else if (code < 0x800) {
    append(0xC0 | (code >> 6));
    append(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    append(0xE0 | (code >> 12));
    append(0x80 | ((code >> 6) & 0x3F));
    append(0x80 | (code & 0x3F));
  } else {
    append(0xF0 | (code >> 18));
    append(0x80 | ((code >> 12) & 0x3F));
    append(0x80 | ((code >> 6) & 0x3F));
    append(0x80 | (code & 0x3F));
  }
}

void AppendUtf16(std::wstring& text, char32_t code) {
  if (code >= 0x10000) {
    text.push_back(static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10)));
    text.push_back(static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
  } else {
    text.push_back(static_cast<wchar_t>(code));
  }
}

std::uint8_t ByteAt(std::string_view text, std::size_t i) {
  return static_cast<std::uint8_t>(text[i]);
}

/// The character at `i`, which moves behind it; a byte that belongs to none is U+FFFD.
char32_t NextCharacter(std::string_view text, std::size_t& i) {
  constexpr char32_t kReplacement = 0xFFFD;
  const std::uint8_t lead = ByteAt(text, i++);
  if (lead < 0x80) return lead;
  std::size_t more = 0;
  char32_t least = 0;
  if (lead >= 0xC2 && lead < 0xE0) {
    more = 1;
    least = 0x80;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    more = 2;
    least = 0x800;
  } else if (lead >= 0xF0 && lead < 0xF5) {
    more = 3;
    least = 0x10000;
  } else {
    return kReplacement;
  }
  if (text.size() - i < more) return kReplacement;
  char32_t code = lead & (0x3FU >> more);
  for (std::size_t k = 0; k < more; ++k) {
    const std::uint8_t byte = ByteAt(text, i + k);
    if ((byte & 0xC0) != 0x80) return kReplacement;
    code = (code << 6) | (byte & 0x3FU);
  }
  if (code < least || code > 0x10FFFF) return kReplacement;
  i += more;
  return code;
}

}  // namespace

std::string FromWide(std::wstring_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t code = static_cast<std::uint16_t>(text[i]);
    if (IsHighSurrogate(code) && i + 1 < text.size()) {
      const char32_t next = static_cast<std::uint16_t>(text[i + 1]);
      if (IsLowSurrogate(next)) {
        code = 0x10000 + ((code - 0xD800) << 10) + (next - 0xDC00);
        ++i;
      }
    }
    AppendUtf8(result, code);
  }
  return result;
}

std::wstring ToWide(std::string_view text) {
  std::wstring result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) AppendUtf16(result, NextCharacter(text, i));
  return result;
}

std::string FromBstr(BSTR text) { return FromWide({text, SysStringLen(text)}); }

BSTR ToBstr(std::string_view text) {
  const std::wstring wide = ToWide(text);
  BSTR result = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (result == nullptr) throw std::bad_alloc();
  return result;
}

}  // namespace rangewerks::com
