// Dates and times as texts of a locale. Private to this folder's sources.
#pragma once

#include <optional>
#include <string_view>

#include "automation/locale.h"
#include "automation/variant.h"

namespace rangewerks::automation {

/// Reads a whole text as a date, a time or both by the rules of ToDate.
std::optional<Date> ReadDate(std::string_view text, const Locale& locale);

/// Reads a calendar day as its day number, with no blanks around it.
std::optional<int> ReadDay(std::string_view text, const Locale& locale);

/// Reads a time as the seconds since midnight, with no blanks around it. Other than ":", the
/// locale's time separator is understood too.
std::optional<int> ReadTime(std::string_view text, const Locale& locale);

}  // namespace rangewerks::automation
