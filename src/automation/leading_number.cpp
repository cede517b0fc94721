#include <cmath>
#include <cstdint>
#include <string>

#include "automation/characters.h"
#include "automation/conversions.h"
#include "automation/error.h"
#include "automation/number_text.h"

namespace rangewerks::automation {
namespace {

/// A text without its blanks, tabs and line feeds, which are passed over wherever they stand.
class Tight {
 public:
  explicit Tight(std::string_view text) : rest_(text) { PassOver(); }

  /// The next character, or NUL at the end.
  char Peek() const { return rest_.empty() ? '\0' : rest_.front(); }
  char Next() {
    const char c = Peek();
    rest_.remove_prefix(1);
    PassOver();
    return c;
  }

 private:
  void PassOver() {
    while (!rest_.empty() &&
           (rest_.front() == ' ' || rest_.front() == '\t' || rest_.front() == '\n'))
      rest_.remove_prefix(1);
  }

  std::string_view rest_;
};

double SignedBits(std::uint64_t bits) {
  if (bits <= 0xFFFF) return static_cast<std::int16_t>(bits);
  return static_cast<std::int32_t>(bits);
}

double LeadingBitPattern(Tight text) {
  text.Next();  // "&"
  const char letter = text.Next();
  const bool isHex = letter == 'H' || letter == 'h';
  if (!isHex && letter != 'O' && letter != 'o') return 0;
  const unsigned base = isHex ? 16 : 8;
  std::uint64_t bits = 0;
  while (DigitValue(text.Peek()) < base) {
    bits = bits * base + DigitValue(text.Next());
    if (bits > 0xFFFFFFFF) throw Error(ErrorNumber::Overflow);
  }
  return SignedBits(bits);
}

void CopyDigits(Tight& text, std::string& digits) {
  while (IsDigit(text.Peek())) digits += text.Next();
}

/// An exponent without digits doesn't belong to the number.
void CopyExponent(Tight text, std::string& digits) {
  const char mark = text.Peek();
  if (mark != 'e' && mark != 'E' && mark != 'd' && mark != 'D') return;
  text.Next();
  std::string exponent = "e";
  if (text.Peek() == '+' || text.Peek() == '-') exponent += text.Next();
  if (!IsDigit(text.Peek())) return;
  CopyDigits(text, exponent);
  digits += exponent;
}

double LeadingDecimal(Tight text) {
  const bool isNegative = text.Peek() == '-';
  if (isNegative || text.Peek() == '+') text.Next();
  std::string digits;
  CopyDigits(text, digits);
  if (text.Peek() == '.') {
    digits += text.Next();
    CopyDigits(text, digits);
  }
  if (digits.empty() || digits == ".") return 0;
  CopyExponent(text, digits);
  const double value = DecimalValue(digits);
  if (std::isinf(value)) throw Error(ErrorNumber::Overflow);
  return isNegative && value != 0 ? -value : value;
}

}  // namespace

double LeadingNumber(std::string_view text) {
  const Tight tight(text);
  return tight.Peek() == '&' ? LeadingBitPattern(tight) : LeadingDecimal(tight);
}

}  // namespace rangewerks::automation
