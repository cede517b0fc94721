// Numbers as texts of a locale. Private to this folder's sources.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/locale.h"

namespace rangewerks::automation {

enum class ReadOutcome { Read, Mismatch, Overflow };

struct NumberRead {
  ReadOutcome outcome;
  double value = 0;
  bool isBitPattern = false;  ///< "&H" or "&O"
  std::uint64_t bits = 0;     ///< of a bit pattern; an integer takes its own highest bit as sign
};

/// Reads a whole text as a number by the rules of ToDouble.
NumberRead ReadNumber(std::string_view text, const Locale& locale);

/// Writes a number by the rules of ToString.
std::string WriteNumber(double value, const Locale& locale);

/// The value of decimal digits with "." and an exponent after "e" as they may stand in a text of
/// any length: at least one digit, then nothing that std::from_chars would stop at. Too small a
/// number is 0; the result is infinite when it is too great.
double DecimalValue(std::string_view digits);

/// The value of a hexadecimal or octal digit; the base or more for any other character.
unsigned DigitValue(char c);

}  // namespace rangewerks::automation
