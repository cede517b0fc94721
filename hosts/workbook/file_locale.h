// How a workbook file calls the facts of the locale.
#pragma once

#include <array>
#include <cstdint>

#include "hosts/workbook/international.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {

/// A key of "international" whose value is a text, and its index in International.
struct SeparatorKey {
  const char* key;
  std::int32_t index;
};
inline constexpr std::array<SeparatorKey, 6> kSeparatorKeys{
    {{"decimal_separator", excel::xlDecimalSeparator},
     {"thousands_separator", kThousandsSeparator},
     {"list_separator", excel::xlListSeparator},
     {"date_separator", kDateSeparator},
     {"time_separator", kTimeSeparator},
     {"currency_symbol", kCurrencySymbol}}};

/// The values of "date_order", in the order of the numbers that International has for them.
inline constexpr std::array<const char*, 3> kDateOrderWords{"month_first", "day_first",
                                                            "year_first"};

}  // namespace rangewerks::hosts::workbook
