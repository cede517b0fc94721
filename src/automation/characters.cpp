#include "automation/characters.h"

#include <algorithm>
#include <array>

namespace rangewerks::automation {
namespace {

/// In UTF-8. What lies within ASCII is white space to IsWhiteSpace as it is.
constexpr std::array<std::string_view, 19> kBlanksBeyondAscii = {
    "\u0085", "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003",
    "\u2004", "\u2005", "\u2006", "\u2007", "\u2008", "\u2009", "\u200A",
    "\u2028", "\u2029", "\u202F", "\u205F", "\u3000"};

bool IsBeyondAscii(char c) { return static_cast<unsigned char>(c) >= 0x80; }

/// The bytes of the blank that the text starts with; 0 when it starts with something else.
std::size_t BlankLength(std::string_view text) {
  if (!IsBeyondAscii(text.front())) return 0;
  for (const std::string_view blank : kBlanksBeyondAscii) {
    if (text.starts_with(blank)) return blank.size();
  }
  return 0;
}

}  // namespace

std::string WithCommonBlanks(std::string_view text) {
  if (std::none_of(text.begin(), text.end(), IsBeyondAscii)) return std::string(text);
  std::string plain;
  while (!text.empty()) {
    const std::size_t blank = BlankLength(text);
    plain += blank == 0 ? text.front() : ' ';
    text.remove_prefix(blank == 0 ? 1 : blank);
  }
  return plain;
}

}  // namespace rangewerks::automation
