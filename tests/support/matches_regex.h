// Whole texts against a POSIX extended regular expression, on every system: GoogleMock's own
// matcher of this name knows hardly any patterns on Windows.
#pragma once

#include <gmock/gmock.h>

#include <regex>
#include <string>

namespace rangewerks::tests {

MATCHER_P(MatchesRegex, pattern, "matches regular expression " + testing::PrintToString(pattern)) {
  return std::regex_match(std::string(arg), std::regex(pattern, std::regex::extended));
}

}  // namespace rangewerks::tests
