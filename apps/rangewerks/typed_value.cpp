#include "apps/rangewerks/typed_value.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "automation/conversions.h"
#include "automation/error.h"
#include "automation/text.h"

namespace rangewerks::apps {

namespace {

using automation::Variant;
using Found = std::optional<Variant>;

constexpr std::int64_t kLargestExactInteger = std::int64_t{1} << 53;
constexpr const char* kExpectedDate = "a day such as 2024-01-31";
constexpr const char* kExpectedInteger = "a whole number from -32768 to 32767";

/// The number that the whole text is, in digits with a point: no blanks, no separators.
template <class Number>
std::optional<Number> WholeNumber(std::string_view text) {
  Number number{};
  const char* end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data(), end, number);
  if (fault != std::errc() || stop != end || text.empty()) return std::nullopt;
  return number;
}

Found DateOf(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto year = WholeNumber<unsigned>(text.substr(0, 4));
  const auto month = WholeNumber<unsigned>(text.substr(5, 2));
  const auto day = WholeNumber<unsigned>(text.substr(8, 2));
  if (!year || !month || !day) return std::nullopt;
  try {
    return automation::DateOf(static_cast<int>(*year), static_cast<int>(*month),
                              static_cast<int>(*day));
  } catch (const automation::Error&) {
    return std::nullopt;  // no such day
  }
}

Found YesNoOf(std::string_view text) {
  for (const char* yes : {"true", "Y", "YES"}) {
    if (automation::EqualText(text, yes)) return true;
  }
  for (const char* no : {"false", "N", "NO"}) {
    if (automation::EqualText(text, no)) return false;
  }
  return std::nullopt;
}

Found NumberOf(std::string_view text) {
  const auto number = WholeNumber<double>(text);
  if (!number || !std::isfinite(*number)) return std::nullopt;
  return *number;
}

Found IntegerOf(std::string_view text) {
  const auto number = WholeNumber<std::int16_t>(text);
  return number ? Found(*number) : std::nullopt;
}

/// None for an integer that a double can't hold exactly.
Found JsonNumber(const Json& value) {
  if (!value.is_number()) return std::nullopt;
  if (value.is_number_unsigned()) {
    if (value.get<std::uint64_t>() > std::uint64_t{kLargestExactInteger}) return std::nullopt;
  } else if (value.is_number_integer() && value.get<std::int64_t>() < -kLargestExactInteger) {
    return std::nullopt;
  }
  return value.get<double>();
}

Found JsonInteger(const Json& value) {
  return value.is_number_integer() ? IntegerOf(value.dump()) : std::nullopt;
}

}  // namespace

Found ValueOfText(const std::string& text, eRangeDataType type) {
  switch (type) {
    case rdtDouble:
      return NumberOf(text);
    case rdtDate:
      return DateOf(text);
    case rdtInteger:
      return IntegerOf(text);
    case rdtYesNo:
      return YesNoOf(text);
    case rdtString:
      break;
  }
  return text;
}

Found ValueOfJson(const Json& value, eRangeDataType type) {
  switch (type) {
    case rdtDouble:
      return JsonNumber(value);
    case rdtInteger:
      return JsonInteger(value);
    case rdtYesNo:
      if (value.is_boolean()) return value.get<bool>();
      [[fallthrough]];
    case rdtDate:
    case rdtString:
      break;
  }
  if (!value.is_string()) return std::nullopt;
  return ValueOfText(value.get<std::string>(), type);
}

std::string ExpectedInJson(eRangeDataType type) {
  switch (type) {
    case rdtDouble:
      return "a number without quotes, whole ones up to 9007199254740992";
    case rdtDate:
      return std::string(kExpectedDate) + " in quotes";
    case rdtInteger:
      return std::string(kExpectedInteger) + " without quotes";
    case rdtYesNo:
      return "true or false";
    case rdtString:
      break;
  }
  return "a text in quotes";
}

std::string ExpectedInText(eRangeDataType type) {
  switch (type) {
    case rdtDouble:
      return "a number such as 1250.5: digits with a point, nothing else";
    case rdtDate:
      return kExpectedDate;
    case rdtInteger:
      return kExpectedInteger;
    case rdtYesNo:
      return "true or false, or Y or N";
    case rdtString:
      break;
  }
  return "a text";
}

}  // namespace rangewerks::apps
