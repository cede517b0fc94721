// The conversions of the platform's own automation library, oleaut32.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "windows/conversion_case.h"

namespace rangewerks::tests {

/// What oleaut32 makes of the input. Its failures come as the numbers that scripts see: 13 for a
/// mismatch, 6 for an overflow, 5 for an invalid argument.
class PlatformConversions {
 public:
  /// In the locale of that name.
  explicit PlatformConversions(const wchar_t* name) : locale_(LocaleNameToLCID(name, 0)) {}

  Outcome DoubleOf(const std::string& text) const;
  Outcome IntegerOf(const std::string& text) const;
  Outcome LongOf(const std::string& text) const;
  Outcome BooleanOf(const std::string& text) const;
  Outcome DateOf(const std::string& text) const;

  Outcome TextOf(double number) const;
  Outcome TextOf(std::int32_t number) const;
  Outcome TextOf(std::int16_t number) const;
  Outcome TextOf(bool truth) const;
  Outcome IntegerOf(double number) const;
  Outcome LongOf(double number) const;
  Outcome BooleanOf(double number) const;
  Outcome DateOf(double number) const;

  /// To so many decimal places.
  static Outcome Rounded(double number, int places);

  Outcome TextOfDate(double serial) const;
  Outcome FormattedDate(double serial, const std::string& pattern) const;

 private:
  LCID locale_;
};

}  // namespace rangewerks::tests
