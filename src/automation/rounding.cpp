#include <array>
#include <charconv>
#include <cmath>

#include "automation/conversions.h"
#include "automation/error.h"

namespace rangewerks::automation {
namespace {

/// The powers of ten that a double holds exactly.
constexpr std::array<double, 23> kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr double kExactIntegers = 9007199254740992.0;  // 2^53
constexpr int kMostPlaces = 1074;                      // no double has more decimal places

/// Whether the value is the double nearest to a decimal number with so many places. Only a yes is
/// sure: one integer that a double holds exactly, divided once by another, is rounded once.
bool SurelyHasPlaces(double value, int places) {
  if (places >= static_cast<int>(kPowersOfTen.size())) return false;
  const double power = kPowersOfTen[static_cast<std::size_t>(places)];
  const double scaled = std::nearbyint(value * power);
  return std::abs(scaled) < kExactIntegers && scaled / power == value;
}

/// Rounds the exact decimal expansion of the value, which the library prints to any length.
double RoundExpansion(double value, int places) {
  constexpr std::size_t kLongest = 1 + 309 + 1 + kMostPlaces;  // sign, whole part, point, places
  std::array<char, kLongest> buffer{};
  char* const start = buffer.data();
  const char* const end =
      std::to_chars(start, start + kLongest, value, std::chars_format::fixed, places).ptr;
  double rounded = value;
  std::from_chars(start, end, rounded);
  return rounded;
}

}  // namespace

double RoundHalfEven(double value, int places) {
  if (places < 0) throw Error(ErrorNumber::InvalidProcedureCall);
  const bool isWhole = !(std::abs(value) < kExactIntegers);  // or infinite, or no number
  if (isWhole || places >= kMostPlaces || SurelyHasPlaces(value, places)) return value;
  return RoundExpansion(value, places) + 0.0;  // "-0.00" becomes 0
}

}  // namespace rangewerks::automation
