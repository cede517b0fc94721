#include "browse/macro_text.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "automation/error.h"
#include "automation/text.h"

namespace rangewerks {
namespace {

using automation::Error;
using automation::kApplicationErrorBase;

/// Macro editors keep code in the system's code page. Where that lacks one of these, it becomes a
/// double quote on its way in and would end the literal.
constexpr std::array<std::string_view, 12> kLikeQuotes{
    "\xCA\xBA",      // U+02BA modifier letter double prime
    "\xCC\x8E",      // U+030E combining double vertical line above
    "\xE2\x80\x9C",  // U+201C left double quotation mark
    "\xE2\x80\x9D",  // U+201D right double quotation mark
    "\xE2\x80\x9E",  // U+201E double low quotation mark
    "\xE2\x80\x9F",  // U+201F double reversed quotation mark
    "\xE2\x80\xB3",  // U+2033 double prime
    "\xE2\x80\xB6",  // U+2036 reversed double prime
    "\xE3\x80\x83",  // U+3003 ditto mark
    "\xE3\x80\x9D",  // U+301D reversed double prime quotation mark
    "\xE3\x80\x9E",  // U+301E double prime quotation mark
    "\xEF\xBC\x82",  // U+FF02 fullwidth quotation mark
};

/// Line and paragraph separators, which end lines too.
constexpr std::array<std::string_view, 2> kLineEnds{"\xE2\x80\xA8", "\xE2\x80\xA9"};

/// The Thai code page, 874, takes pictures for the control characters that have once been shown so.
constexpr std::array<std::string_view, 4> kLikeLineEnds{
    "\xE2\x97\x99",  // U+25D9 inverse white circle: line feed
    "\xE2\x99\x82",  // U+2642 male sign: vertical tabulation
    "\xE2\x99\x80",  // U+2640 female sign: form feed
    "\xE2\x99\xAA",  // U+266A eighth note: carriage return
};

bool IsControl(std::string_view character) {
  const auto first = static_cast<unsigned char>(character.front());
  if (character.size() == 1) return first < 0x20 || first == 0x7F;
  // U+0080 to U+009F.
  return first == 0xC2 && character.size() == 2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

bool IsBroken(std::string_view character) {
  return character.size() == 1 && static_cast<unsigned char>(character.front()) >= 0x80;
}

template <std::size_t Size>
bool IsOneOf(std::string_view character, const std::array<std::string_view, Size>& all) {
  return std::ranges::find(all, character) != all.end();
}

[[noreturn]] void Refuse(std::string_view sText, const char* holding) {
  // Shown without what is wrong with it, which could spoil the message as well.
  std::string shown(sText);
  std::ranges::replace_if(
      shown, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
  throw Error(kApplicationErrorBase, "MacroLiteral",
              "\"" + shown + "\" can't be written into macro code: it holds " + holding);
}

}  // namespace

std::string MacroLiteral(std::string_view sText) {
  std::string literal = "\"";
  for (std::string_view rest = sText; !rest.empty();) {
    const std::string_view character = automation::Left(rest, 1);
    if (IsControl(character) || IsOneOf(character, kLineEnds)) {
      Refuse(sText, "a line end or another control character");
    }
    if (IsOneOf(character, kLikeLineEnds)) {
      Refuse(sText, "a character that macro editors take for a line end");
    }
    if (IsOneOf(character, kLikeQuotes)) {
      Refuse(sText, "a character that macro editors take for a double quote");
    }
    if (IsBroken(character)) Refuse(sText, "bytes that are no characters");
    literal += character;
    if (character == "\"") literal += character;
    rest.remove_prefix(character.size());
  }
  return literal + '"';
}

}  // namespace rangewerks
