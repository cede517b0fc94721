// Texts that people and programs write for numbers, dates and times, right ones and wrong ones.
#pragma once

#include <string>
#include <vector>

namespace rangewerks::tests {

/// Every text once, in UTF-8: the numbers, the dates and times, and what is neither.
std::vector<std::string> NumberTexts();
std::vector<std::string> DateTexts();
std::vector<std::string> OtherTexts();

/// Numbers whose digits, magnitude or rounding lie at a border.
std::vector<double> BorderNumbers();

/// Serial numbers of days and times all over the calendar and at its ends.
std::vector<double> BorderDates();

/// Patterns for dates and times, those that the library itself writes by among them.
std::vector<std::string> DatePatterns();

}  // namespace rangewerks::tests
