#include "automation/number_text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "automation/characters.h"

namespace rangewerks::automation {
namespace {

/// Takes a text apart from the front.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }
  char Peek() const { return rest_.empty() ? '\0' : rest_.front(); }
  char Next() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }
  bool Take(char wanted) {
    if (Peek() != wanted || AtEnd()) return false;
    rest_.remove_prefix(1);
    return true;
  }
  /// An empty text is never there.
  bool Take(std::string_view wanted) {
    if (wanted.empty() || !rest_.starts_with(wanted)) return false;
    rest_.remove_prefix(wanted.size());
    return true;
  }
  void SkipBlanks() {
    while (!rest_.empty() && IsWhiteSpace(rest_.front())) rest_.remove_prefix(1);
  }

 private:
  std::string_view rest_;
};

/// What may stand around the digits, each at most once over both sides.
struct Surroundings {
  bool hasSign = false;
  bool isNegative = false;
  bool hasCurrency = false;
  bool isOpen = false;  ///< "(" without its ")" so far

  void ReadBefore(Scanner& scanner, const Locale& locale) {
    for (;;) {
      scanner.SkipBlanks();
      if (!hasSign && scanner.Take('(')) {
        hasSign = isNegative = isOpen = true;
      } else if (!TakeSign(scanner) && !TakeCurrency(scanner, locale)) {
        return;
      }
    }
  }
  void ReadBehind(Scanner& scanner, const Locale& locale) {
    for (;;) {
      scanner.SkipBlanks();
      if (isOpen && scanner.Take(')')) {
        isOpen = false;
      } else if (!TakeSign(scanner) && !TakeCurrency(scanner, locale)) {
        return;
      }
    }
  }

 private:
  bool TakeSign(Scanner& scanner) {
    if (hasSign || (scanner.Peek() != '+' && scanner.Peek() != '-')) return false;
    isNegative = scanner.Next() == '-';
    return hasSign = true;
  }
  bool TakeCurrency(Scanner& scanner, const Locale& locale) {
    if (hasCurrency || !scanner.Take(locale.currencySymbol)) return false;
    return hasCurrency = true;
  }
};

/// Copies the exponent behind "e". False when there are no digits in it.
bool ReadExponent(Scanner& scanner, std::string& digits) {
  digits += 'e';
  if (scanner.Peek() == '+' || scanner.Peek() == '-') digits += scanner.Next();
  if (!IsDigit(scanner.Peek())) return false;
  while (IsDigit(scanner.Peek())) digits += scanner.Next();
  return true;
}

/// Copies a decimal number without its thousands separators and with "." before its fraction.
bool ReadDecimal(Scanner& scanner, const Locale& locale, std::string& digits) {
  // People type a common blank where their locale groups digits by one that doesn't break the line.
  const std::string thousandsSeparator = WithCommonBlanks(locale.thousandsSeparator);
  bool hasDigit = false;
  bool hasPoint = false;
  for (;;) {
    if (IsDigit(scanner.Peek())) {
      digits += scanner.Next();
      hasDigit = true;
    } else if (!hasPoint && scanner.Take(locale.decimalSeparator)) {
      digits += '.';
      hasPoint = true;
    } else if (!hasDigit || !scanner.Take(thousandsSeparator)) {
      break;
    }
  }
  if (!hasDigit) return false;
  for (const char mark : {'e', 'E', 'd', 'D'}) {
    if (scanner.Take(mark)) return ReadExponent(scanner, digits);
  }
  return true;
}

/// The integer of a pattern: its 32nd bit is the sign, or beyond 32 bits the 64th.
double SignedBits(std::uint64_t bits) {
  constexpr auto kMostNarrow = std::numeric_limits<std::uint32_t>::max();
  if (bits <= kMostNarrow) return static_cast<std::int32_t>(bits);
  return static_cast<double>(static_cast<std::int64_t>(bits));
}

/// A pattern of at most 64 bits behind "&H" or "&O".
NumberRead ReadBitPattern(Scanner& scanner, unsigned bitsPerDigit) {
  std::uint64_t bits = 0;
  bool hasDigit = false;
  bool isTooLong = false;
  for (; DigitValue(scanner.Peek()) < (1U << bitsPerDigit); hasDigit = true) {
    isTooLong = isTooLong || bits >> (64U - bitsPerDigit) != 0;
    bits = (bits << bitsPerDigit) | DigitValue(scanner.Next());
  }
  scanner.SkipBlanks();
  if (!hasDigit || !scanner.AtEnd()) return {ReadOutcome::Mismatch};
  if (isTooLong) return {ReadOutcome::Overflow};
  return {ReadOutcome::Read, SignedBits(bits), true, bits};
}

/// Where the first digit that isn't 0 stands: 1 for units, 0 for tenths; with the exponent added.
/// Saturates far outside of what a double holds.
std::int64_t Magnitude(std::string_view digits) {
  std::int64_t place = 0;
  bool inFraction = false;
  bool isSignificant = false;
  std::size_t i = 0;
  for (; i < digits.size() && digits[i] != 'e'; ++i) {
    if (digits[i] == '.') {
      inFraction = true;
      continue;
    }
    isSignificant = isSignificant || digits[i] != '0';
    if (!inFraction && isSignificant) ++place;
    if (inFraction && !isSignificant) --place;
  }
  if (i == digits.size()) return place;
  constexpr std::int64_t kFar = 1'000'000'000'000;
  const bool isNegative = digits[i + 1] == '-';
  if (isNegative || digits[i + 1] == '+') ++i;
  std::int64_t exponent = 0;
  for (++i; i < digits.size() && exponent < kFar; ++i) exponent = exponent * 10 + (digits[i] - '0');
  return isNegative ? place - exponent : place + exponent;
}

}  // namespace

unsigned DigitValue(char c) {
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a') + 10;
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A') + 10;
  return 16;
}

double DecimalValue(std::string_view digits) {
  double value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  return Magnitude(digits) > 0 ? std::numeric_limits<double>::infinity() : 0;
}

NumberRead ReadNumber(std::string_view text, const Locale& locale) {
  const std::string plain = WithCommonBlanks(text);
  Scanner scanner(plain);
  Surroundings around;
  around.ReadBefore(scanner, locale);
  if (!around.hasSign && !around.hasCurrency && scanner.Take('&')) {
    if (scanner.Take('H') || scanner.Take('h')) return ReadBitPattern(scanner, 4);
    if (scanner.Take('O') || scanner.Take('o')) return ReadBitPattern(scanner, 3);
    return {ReadOutcome::Mismatch};
  }
  std::string digits;
  if (!ReadDecimal(scanner, locale, digits)) return {ReadOutcome::Mismatch};
  around.ReadBehind(scanner, locale);
  if (around.isOpen || !scanner.AtEnd()) return {ReadOutcome::Mismatch};
  const double value = DecimalValue(digits);
  if (std::isinf(value)) return {ReadOutcome::Overflow};
  return {ReadOutcome::Read, around.isNegative && value != 0 ? -value : value};
}

}  // namespace rangewerks::automation
