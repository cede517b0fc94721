#include "automation/utf8.h"

namespace rangewerks::automation::utf8 {
namespace {

unsigned Byte(char c) { return static_cast<unsigned char>(c); }

struct Lead {
  std::size_t size;
  char32_t bits;
  char32_t least;  ///< the smallest code point that needs this many bytes
};

Lead LeadOf(unsigned byte) {
  if (byte >= 0xC2 && byte <= 0xDF) return {2, byte & 0x1FU, 0x80};
  if (byte >= 0xE0 && byte <= 0xEF) return {3, byte & 0x0FU, 0x800};
  if (byte >= 0xF0 && byte <= 0xF4) return {4, byte & 0x07U, 0x10000};
  return {0, 0, 0};
}

bool IsSurrogate(char32_t code) { return code >= 0xD800 && code <= 0xDFFF; }

}  // namespace

Character First(std::string_view text, Surrogates surrogates) {
  const unsigned first = Byte(text.front());
  if (first < 0x80) return {first, 1};
  const Character invalid{kInvalidByte + first, 1};
  const Lead lead = LeadOf(first);
  if (lead.size == 0 || text.size() < lead.size) return invalid;
  char32_t code = lead.bits;
  for (std::size_t i = 1; i < lead.size; ++i) {
    const unsigned byte = Byte(text[i]);
    if ((byte & 0xC0U) != 0x80) return invalid;
    code = (code << 6U) | (byte & 0x3FU);
  }
  if (code < lead.least || code > 0x10FFFF) return invalid;
  if (surrogates == Surrogates::Invalid && IsSurrogate(code)) return invalid;
  return {code, lead.size};
}

void Append(std::string& text, char32_t code) {
  const auto put = [&text](char32_t byte) {
    text += static_cast<char>(static_cast<unsigned char>(byte));
  };
  const auto putFollowing = [&put, code](unsigned shift) {
    put(0x80U | ((code >> shift) & 0x3FU));
  };
  if (code >= kInvalidByte) {
    put(code - kInvalidByte);
  } else if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0U | (code >> 6U));
    putFollowing(0);
  } else if (code < 0x10000) {
    put(0xE0U | (code >> 12U));
    putFollowing(6);
    putFollowing(0);
  } else {
    put(0xF0U | (code >> 18U));
    putFollowing(12);
    putFollowing(6);
    putFollowing(0);
  }
}

}  // namespace rangewerks::automation::utf8
