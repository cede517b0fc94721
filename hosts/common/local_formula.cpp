#include "hosts/common/local_formula.h"

namespace rangewerks::hosts {
namespace {

bool IsDigit(const std::string& text, std::size_t position) {
  return position < text.size() && text[position] >= '0' && text[position] <= '9';
}

/// A comma in a number, rather than one that a person means as a separator.
bool IsInNumber(const std::string& text, std::size_t position) {
  return IsDigit(text, position + 1) && (position == 0 || text[position - 1] != ')');
}

}  // namespace

std::optional<std::string> EnglishFormula(const std::string& local,
                                          const automation::Locale& locale) {
  if (locale.listSeparator == ",") return local;
  std::string english;
  char quote = 0;  // the end of the text or of the sheet's name that this is
  for (std::size_t i = 0; i < local.size(); ++i) {
    const char c = local[i];
    const std::string here(1, c);
    if (quote != 0) {
      if (c == quote) quote = 0;
      english += c;
    } else if (c == '"' || c == '\'') {
      quote = c;
      english += c;
    } else if (here == locale.listSeparator) {
      english += ',';
    } else if (here == locale.decimalSeparator && IsInNumber(local, i)) {
      english += '.';
    } else if (c == ',' || c == '{') {
      return std::nullopt;
    } else {
      english += c;
    }
  }
  return english;
}

}  // namespace rangewerks::hosts
