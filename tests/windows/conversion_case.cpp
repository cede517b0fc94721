#include "windows/conversion_case.h"

#include <array>
#include <charconv>

namespace rangewerks::tests {
namespace {

/// With all its digits.
std::string Exact(double number) {
  std::array<char, 32> buffer{};
  char* const start = buffer.data();
  return {start, std::to_chars(start, start + buffer.size(), number).ptr};
}

const char* NameOf(Conversion conversion) {
  switch (conversion) {
    case Conversion::DoubleOfText:
      return "text to double";
    case Conversion::IntegerOfText:
      return "text to integer";
    case Conversion::LongOfText:
      return "text to long";
    case Conversion::BooleanOfText:
      return "text to boolean";
    case Conversion::DateOfText:
      return "text to date";
    case Conversion::TextOfDouble:
      return "double to text";
    case Conversion::IntegerOfDouble:
      return "double to integer";
    case Conversion::LongOfDouble:
      return "double to long";
    case Conversion::BooleanOfDouble:
      return "double to boolean";
    case Conversion::DateOfDouble:
      return "double to date";
    case Conversion::TextOfDate:
      return "date to text";
    case Conversion::FormattedDate:
      return "date by pattern";
  }
  return "";
}

/// With everything but printable ASCII in view.
std::string Shown(const std::string& text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string shown;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7F) {
      shown += c;
    } else {
      shown.append("\\x").append(1, kDigits[byte / 16]).append(1, kDigits[byte % 16]);
    }
  }
  return shown;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  if (!outcome.IsValue()) return out << "failure " << outcome.failure;
  if (!outcome.text.empty()) return out << '"' << Shown(outcome.text) << '"';
  return out << Exact(outcome.number);
}

std::ostream& operator<<(std::ostream& out, const Case& c) {
  return out << NameOf(c.conversion) << ", separators " << c.locale.decimalSeparator << ' '
             << c.locale.dateSeparator << ": \"" << Shown(c.text) << "\" " << Exact(c.number)
             << ": ours " << c.ours << ", theirs " << c.theirs;
}

}  // namespace rangewerks::tests
