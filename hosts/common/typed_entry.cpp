#include "hosts/common/typed_entry.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "automation/conversions.h"
#include "automation/text.h"
#include "hosts/common/cell_errors.h"

namespace rangewerks::hosts {
namespace {

using automation::Date;
using automation::Locale;

constexpr std::size_t kGroup = 3;
constexpr double kPercent = 100;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

/// Takes `piece` off the front of `text` when it stands there.
bool Pass(std::string_view& text, std::string_view piece) {
  if (piece.empty() || !text.starts_with(piece)) return false;
  text.remove_prefix(piece.size());
  return true;
}

bool PassBack(std::string_view& text, std::string_view piece) {
  if (piece.empty() || !text.ends_with(piece)) return false;
  text.remove_suffix(piece.size());
  return true;
}

std::string_view TakeDigits(std::string_view& text) {
  std::size_t count = 0;
  while (count < text.size() && IsDigit(text[count])) ++count;
  const std::string_view digits = text.substr(0, count);
  text.remove_prefix(count);
  return digits;
}

/// The integer digits, taken off the text; none when groups between thousands separators aren't of
/// three digits.
std::optional<std::string> TakeGroups(std::string_view& text, const Locale& locale) {
  std::string digits(TakeDigits(text));
  const std::size_t lead = digits.size();
  while (Pass(text, locale.thousandsSeparator)) {
    const std::string_view group = TakeDigits(text);
    if (lead == 0 || lead > kGroup || group.size() != kGroup) return std::nullopt;
    digits += group;
  }
  return digits;
}

/// The exponent with its "e" in front, empty when there is none.
std::string TakeExponent(std::string_view& text) {
  if (!text.starts_with('e') && !text.starts_with('E')) return {};
  std::string_view rest = text.substr(1);
  const bool minus = rest.starts_with('-');
  if (minus || rest.starts_with('+')) rest.remove_prefix(1);
  const std::string_view digits = TakeDigits(rest);
  if (digits.empty()) return {};
  text = rest;
  return (minus ? "e-" : "e") + std::string(digits);
}

struct Number {
  double value;
  std::string format;
};

std::optional<Number> ReadNumber(std::string_view text, const Locale& locale) {
  text = automation::Trim(text);
  const bool percent = PassBack(text, "%");
  bool minus = false;
  if (text.size() > 1 && text.starts_with('(') && text.ends_with(')')) {
    minus = true;
    text = text.substr(1, text.size() - 2);
  } else if (Pass(text, "-")) {
    minus = true;
  } else {
    Pass(text, "+");
  }
  if (Pass(text, locale.currencySymbol)) text = automation::TrimLeft(text);

  auto digits = TakeGroups(text, locale);
  if (!digits) return std::nullopt;
  std::string_view decimals;
  if (Pass(text, locale.decimalSeparator)) decimals = TakeDigits(text);
  if (digits->empty() && decimals.empty()) return std::nullopt;
  const std::string exponent = TakeExponent(text);
  if (!text.empty()) return std::nullopt;

  if (digits->empty()) digits = "0";
  const std::string plain =
      *digits + "." + (decimals.empty() ? "0" : std::string(decimals)) + exponent;
  double value = 0;
  const auto [end, fault] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (fault != std::errc() || end != plain.data() + plain.size()) return std::nullopt;
  if (minus) value = -value;
  if (!percent) return Number{value, {}};
  return Number{value / kPercent, decimals.empty() ? "0%" : "0.00%"};
}

/// A blank among digits stands only between a date and its time: "1 1/2" is no date.
bool HasStrayBlank(std::string_view text) {
  const std::size_t blank = text.find(' ');
  if (blank == std::string_view::npos) return false;
  const bool second = text.find(' ', blank + 1) != std::string_view::npos;
  return second || text.find(':') == std::string_view::npos;
}

bool MayBeDate(std::string_view text, const Locale& locale) {
  if (std::none_of(text.begin(), text.end(), IsDigit)) return false;
  if (text.find('.') != std::string_view::npos && locale.dateSeparator != ".") return false;
  if (std::any_of(text.begin(), text.end(), IsLetter)) return true;
  const bool hasSeparator =
      !locale.dateSeparator.empty() && text.find(locale.dateSeparator) != std::string_view::npos;
  const bool hasMark = text.find_first_of("/-:") != std::string_view::npos;
  return (hasSeparator || hasMark) && !HasStrayBlank(text);
}

std::optional<Date> ReadDate(const std::string& text, const Locale& locale) {
  if (!MayBeDate(automation::Trim(text), locale) || !IsDate(text, locale)) return std::nullopt;
  const Date date = ToDate(text, locale);
  const bool isTime = date.serial >= 0 && date.serial < 1;
  if (isTime && text.find(':') == std::string::npos) return std::nullopt;
  if (!isTime && date.serial < 2) return std::nullopt;  // 1 January 1900 is day 2
  return date;
}

}  // namespace

TypedEntry ReadTypedEntry(const std::string& text, const Locale& locale) {
  if (automation::EqualText(text, "TRUE")) return {true, {}};
  if (automation::EqualText(text, "FALSE")) return {false, {}};
  if (const auto error = CellErrorOf(text)) return {*error, {}};
  if (const auto number = ReadNumber(text, locale)) return {number->value, number->format};
  if (const auto date = ReadDate(text, locale)) return {*date, {}};
  return {text, {}};
}

}  // namespace rangewerks::hosts
