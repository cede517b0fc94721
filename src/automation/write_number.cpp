#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "automation/number_text.h"

namespace rangewerks::automation {
namespace {

constexpr int kSignificantDigits = 15;

/// People round a half up, while the standard library rounds it to the even digit: a number that
/// lies exactly halfway between two of 15 digits gives way to the next greater double.
double WithHalfUp(double magnitude) {
  constexpr std::size_t kPlaces = 40;  // zeros up to there go on to the end of any double
  std::array<char, kPlaces + 8> buffer{};
  char* const start = buffer.data();
  std::to_chars(start, start + buffer.size(), magnitude, std::chars_format::scientific, kPlaces);
  const std::string_view digits(start, kPlaces + 2);  // with the point behind the first
  const std::string_view behind = digits.substr(kSignificantDigits + 1);
  const bool isHalf = behind.front() == '5' && behind.find_first_not_of('0', 1) == behind.npos;
  return isHalf ? std::nextafter(magnitude, std::numeric_limits<double>::infinity()) : magnitude;
}

/// The mantissa of "d.ddde±xx" or "de±xx", with its point.
std::string_view MantissaOf(std::string_view text) { return text.substr(0, text.find('e')); }

/// "d.ddde±xx" with at most 15 significant digits. The fewest digits that stand for a normal number
/// are also its first 15, if they aren't more.
template <std::size_t N>
std::string_view PrintScientific(double magnitude, std::array<char, N>& buffer) {
  char* const start = buffer.data();
  const auto print = [&](auto... arguments) {
    const char* const end = std::to_chars(start, start + N, arguments...).ptr;
    return std::string_view(start, static_cast<std::size_t>(end - start));
  };
  const std::string_view fewest = print(magnitude, std::chars_format::scientific);
  if (std::isnormal(magnitude) && MantissaOf(fewest).size() <= kSignificantDigits + 1)
    return fewest;
  return print(WithHalfUp(magnitude), std::chars_format::scientific, kSignificantDigits - 1);
}

/// A printed number taken apart.
struct Scientific {
  bool isNegative;
  std::string_view digits;  ///< without the zeros at the end, at least one
  int exponent;
};

template <std::size_t N>
Scientific ToScientific(double value, std::array<char, N>& buffer) {
  const std::string_view text = PrintScientific(std::abs(value), buffer);
  std::string_view digits = MantissaOf(text);
  std::string_view power = text.substr(digits.size() + 1);
  if (power.starts_with('+')) power.remove_prefix(1);
  int exponent = 0;
  std::from_chars(power.data(), power.data() + power.size(), exponent);
  if (digits.size() > 1) {
    buffer[1] = buffer[0];  // over the point, so that the digits are one run
    digits.remove_prefix(1);
  }
  while (digits.size() > 1 && digits.back() == '0') digits.remove_suffix(1);
  return {std::signbit(value) && value != 0, digits, exponent};
}

std::string WriteExponent(int exponent) {
  const int magnitude = std::abs(exponent);
  std::string text = exponent < 0 ? "E-" : "E+";
  if (magnitude < 10) text += '0';
  return text + std::to_string(magnitude);
}

std::string WriteSpecial(double value) {
  if (std::isnan(value)) return "1.#QNAN";
  return value < 0 ? "-1.#INF" : "1.#INF";
}

}  // namespace

std::string WriteNumber(double value, const Locale& locale) {
  if (!std::isfinite(value)) return WriteSpecial(value);
  std::array<char, 32> buffer{};
  const auto [isNegative, digits, exponent] = ToScientific(value, buffer);
  const int count = static_cast<int>(digits.size());
  std::string text = isNegative ? "-" : "";
  if (exponent >= kSignificantDigits || exponent < -4) {
    text += digits.front();
    if (count > 1) text.append(locale.decimalSeparator).append(digits.substr(1));
    return text + WriteExponent(exponent);
  }
  if (exponent < 0) {
    text.append("0").append(locale.decimalSeparator);
    return text.append(static_cast<std::size_t>(-exponent - 1), '0').append(digits);
  }
  const auto whole = static_cast<std::size_t>(exponent) + 1;
  if (digits.size() <= whole) return text.append(digits).append(whole - digits.size(), '0');
  return text.append(digits.substr(0, whole))
      .append(locale.decimalSeparator)
      .append(digits.substr(whole));
}

}  // namespace rangewerks::automation
