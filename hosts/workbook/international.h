// The locale that the spreadsheet program runs under.
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>

#include "automation/locale.h"
#include "automation/variant.h"

namespace rangewerks::hosts::workbook {

/// Indexes of Application.International that nobody but this host asks for.
inline constexpr std::int32_t kThousandsSeparator = 4;
inline constexpr std::int32_t kDateSeparator = 17;
inline constexpr std::int32_t kTimeSeparator = 18;
inline constexpr std::int32_t kCurrencySymbol = 25;

/// What Application.International tells. Follows Locale::Current() until something is set.
class International {
 public:
  /// The fact with that index: 3 decimal, 4 thousands, 5 list separator, 17 date, 18 time
  /// separator, 25 currency symbol, 32 date order, and whatever was set. Raises 1004 for any other.
  automation::Variant At(std::int32_t index) const;
  /// Makes an index answer with any value. Texts for 3, 4, 5, 17, 18 and 25, and 0, 1 and 2 for 32,
  /// also change the locale; the date order brings its short date along.
  void Set(std::int32_t index, const automation::Variant& value);

  /// What was set, by index.
  const std::unordered_map<std::int32_t, automation::Variant>& Given() const { return given_; }

  const automation::Locale& CurrentLocale() const;

 private:
  std::optional<automation::Locale> own_;
  std::unordered_map<std::int32_t, automation::Variant> given_;
};

}  // namespace rangewerks::hosts::workbook
