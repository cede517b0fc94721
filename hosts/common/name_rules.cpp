#include "hosts/common/name_rules.h"

#include <algorithm>

#include "automation/text.h"
#include "hosts/common/area.h"

namespace rangewerks::hosts {
namespace {

constexpr std::size_t kLongestName = 255;
constexpr std::size_t kLongestSheetName = 31;
constexpr std::size_t kLongestModuleName = 31;
constexpr std::string_view kNotInSheetNames = ":\\/?*[]";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
/// Letters of other scripts are taken as they come: each of their bytes is above the ASCII range.
bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

std::string_view PassDigits(std::string_view text) {
  while (!text.empty() && IsDigit(text.front())) text.remove_prefix(1);
  return text;
}

/// "R1C1", "R1", "C1", "RC", "R", "C": cells in the other reference style.
bool LooksLikeRowColumn(std::string_view name) {
  const auto passLetter = [&name](char letter) {
    if (name.empty() || (name.front() & ~0x20) != letter) return false;
    name = PassDigits(name.substr(1));
    return true;
  };
  const bool row = passLetter('R');
  const bool column = passLetter('C');
  return (row || column) && name.empty();
}

bool LooksLikeCell(std::string_view name) {
  return ParseAddress(name).has_value() || LooksLikeRowColumn(name);
}

}  // namespace

std::string FaultOfName(std::string_view name) {
  if (name.empty()) return "it is empty";
  if (automation::Length(name) > kLongestName) return "it has more than 255 characters";
  const char first = name.front();
  if (!IsLetter(first) && first != '_' && first != '\\') {
    return R"(it doesn't begin with a letter, "_" or "\")";
  }
  for (const char c : name) {
    if (IsLetter(c) || IsDigit(c) || c == '_' || c == '.' || c == '\\' || c == '?') continue;
    return c == ' ' ? "it holds a blank" : "it holds the character \"" + std::string(1, c) + "\"";
  }
  if (LooksLikeCell(name)) return "it looks like a cell's address";
  return {};
}

std::string FaultOfSheetName(std::string_view name) {
  if (name.empty()) return "it is empty";
  if (automation::Length(name) > kLongestSheetName) return "it has more than 31 characters";
  const std::size_t bad = name.find_first_of(kNotInSheetNames);
  if (bad != std::string_view::npos) {
    return "it holds the character \"" + std::string(1, name[bad]) + "\"";
  }
  if (name.front() == '\'' || name.back() == '\'') return "it begins or ends with an apostrophe";
  return {};
}

std::string FaultOfModuleName(std::string_view name) {
  if (name.empty()) return "it is empty";
  if (automation::Length(name) > kLongestModuleName) return "it has more than 31 characters";
  if (!IsLetter(name.front())) return "it doesn't begin with a letter";
  for (const char c : name) {
    if (IsLetter(c) || IsDigit(c) || c == '_') continue;
    return "it holds the character \"" + std::string(1, c) + "\"";
  }
  return {};
}

std::string QuotedSheetName(std::string_view name) {
  const bool plain = std::all_of(name.begin(), name.end(), [](char c) {
    return IsLetter(c) || IsDigit(c) || c == '_' || c == '.';
  });
  if (plain && !IsDigit(name.front()) && !LooksLikeCell(name)) return std::string(name);
  std::string quoted = "'";
  for (const char c : name) {
    quoted += c;
    if (c == '\'') quoted += c;
  }
  return quoted + "'";
}

std::string PlaceOf(std::string_view sheet, const Area& area) {
  return QuotedSheetName(sheet) + "!" + AddressOf(area);
}

SheetAndRest SplitSheet(std::string_view reference) {
  if (!reference.starts_with('\'')) {
    const std::size_t mark = reference.rfind('!');
    if (mark == std::string_view::npos) return {{}, std::string(reference), false};
    return {std::string(reference.substr(0, mark)), std::string(reference.substr(mark + 1)), true};
  }
  std::string sheet;
  for (std::size_t i = 1; i < reference.size(); ++i) {
    if (reference[i] == '\'') {
      ++i;
      const bool doubled = i < reference.size() && reference[i] == '\'';
      if (!doubled) {
        if (i == reference.size() || reference[i] != '!') break;
        return {std::move(sheet), std::string(reference.substr(i + 1)), true};
      }
    }
    sheet += reference[i];
  }
  return {{}, std::string(reference), false};
}

std::string_view WithoutTrailingBlank(std::string_view name) {
  return name.ends_with(' ') ? name.substr(0, name.size() - 1) : name;
}

}  // namespace rangewerks::hosts
