// One conversion of one input in one locale, as the library does it and as the platform does.
#pragma once

#include <bit>
#include <cstdint>
#include <ostream>
#include <string>
#include <utility>

#include "automation/locale.h"

namespace rangewerks::tests {

enum class Conversion {
  DoubleOfText,
  IntegerOfText,
  LongOfText,
  BooleanOfText,
  DateOfText,
  TextOfDouble,
  IntegerOfDouble,
  LongOfDouble,
  BooleanOfDouble,
  DateOfDouble,
  TextOfDate,
  FormattedDate,
};

/// A number, a text, or the number of a failure.
struct Outcome {
  std::int32_t failure = 0;
  double number = 0;
  std::string text;

  static Outcome OfNumber(double number) { return {0, number, {}}; }
  static Outcome OfText(std::string text) { return {0, 0, std::move(text)}; }
  static Outcome OfFailure(std::int32_t failure) { return {failure, 0, {}}; }

  bool IsValue() const { return failure == 0; }
  /// The same bits: 0 isn't -0.
  friend bool operator==(const Outcome& left, const Outcome& right) {
    return left.failure == right.failure && left.text == right.text &&
           std::bit_cast<std::uint64_t>(left.number) == std::bit_cast<std::uint64_t>(right.number);
  }
};

struct Case {
  Conversion conversion;
  const automation::Locale& locale;
  std::string text;  ///< what is converted, or the pattern that a date is written by
  double number;     ///< what is converted, when it is no text
  Outcome ours;
  Outcome theirs;
};

/// For the reports of tests.
std::ostream& operator<<(std::ostream& out, const Outcome& outcome);
std::ostream& operator<<(std::ostream& out, const Case& c);

}  // namespace rangewerks::tests
