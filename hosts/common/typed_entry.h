// What a text becomes when it is typed into a cell.
#pragma once

#include <string>
#include <string_view>

#include "automation/locale.h"
#include "automation/variant.h"

namespace rangewerks::hosts {

/// The value that a text stands for, and the number format that it brings along, if any.
struct TypedEntry {
  automation::Variant value;
  std::string format;
};

/// Reads a text as a typed entry. In this order:
/// - "TRUE" and "FALSE" in any case are booleans, "#DIV/0!" and its like error values;
/// - numbers: blanks around it, one sign in front or parentheses as minus, the locale's currency
///   symbol in front, digits with thousands separators before every group of three, the decimal
///   separator, an exponent after e or E; with "%" behind, a hundredth with the format 0% or 0.00%;
/// - dates from 1 January 1900 on and times, as ToDate reads them, when they have "/", "-", ":",
/// the
///   locale's date separator, or a month's name with digits;
/// - all else is text, unchanged.
TypedEntry ReadTypedEntry(const std::string& text, const automation::Locale& locale);

}  // namespace rangewerks::hosts
