#include "systems/posix/settings_text.h"

#include <charconv>

#include "automation/text.h"

namespace rangewerks::systems {
namespace {

constexpr std::string_view kEnd = "end";
constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr const char* kHeading =
    "# Settings, one set for each person. Programs replace this file as a whole; one that lacks\n"
    "# its last line isn't used, but kept beside a new one.\n";

/// What stands behind the backslash for a character, or 0 when the character stands for itself.
char ShortEscape(char c) {
  switch (c) {
    case '\\':
    case '"':
    case ']':
      return c;
    case '\n':
      return 'n';
    case '\r':
      return 'r';
    default:
      return 0;
  }
}

std::string Escaped(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (const char escape = ShortEscape(c)) {
      result += {'\\', escape};
    } else if (code < 0x20 || code == 0x7F) {
      result += {'\\', 'x', kHexDigits[code >> 4U], kHexDigits[code & 0xFU]};
    } else {
      result += c;
    }
  }
  return result;
}

/// Reads one line from its start.
class LineReader {
 public:
  explicit LineReader(std::string_view line) : rest_(line) {}

  bool Take(std::string_view expected) {
    if (!rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }
  /// The text up to a closing character that has no backslash before it, which is taken too.
  std::optional<std::string> TakeEscaped(char closing) {
    std::string result;
    while (!rest_.empty()) {
      const char c = TakeCharacter();
      if (c == closing) return result;
      if (c != '\\') {
        result += c;
      } else if (const auto escaped = TakeEscape()) {
        result += *escaped;
      } else {
        return std::nullopt;
      }
    }
    return std::nullopt;
  }
  std::optional<std::int32_t> TakeNumber() {
    std::int32_t number = 0;
    const auto [end, failure] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
    if (failure != std::errc()) return std::nullopt;
    rest_ = rest_.substr(static_cast<std::size_t>(end - rest_.data()));
    return number;
  }
  bool AtEnd() const { return rest_.empty(); }

 private:
  char TakeCharacter() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }
  std::optional<char> TakeEscape() {
    if (rest_.empty()) return std::nullopt;
    switch (const char c = TakeCharacter()) {
      case '\\':
      case '"':
      case ']':
        return c;
      case 'n':
        return '\n';
      case 'r':
        return '\r';
      case 'x':
        return TakeHexadecimal();
      default:
        return std::nullopt;
    }
  }
  std::optional<char> TakeHexadecimal() {
    if (rest_.size() < 2) return std::nullopt;
    const auto high = kHexDigits.find(TakeCharacter());
    const auto low = kHexDigits.find(TakeCharacter());
    if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
    return static_cast<char>(high << 4U | low);
  }

  std::string_view rest_;
};

std::optional<std::string> ReadKey(std::string_view line) {
  LineReader reader(line);
  if (!reader.Take("[")) return std::nullopt;
  auto name = reader.TakeEscaped(']');
  return reader.AtEnd() ? name : std::nullopt;
}

bool ReadValue(std::string_view line, SettingsKey& key) {
  LineReader reader(line);
  if (!reader.Take("\"")) return false;
  const auto name = reader.TakeEscaped('"');
  if (!name || !reader.Take(" = ")) return false;
  if (reader.Take("\"")) {
    const auto text = reader.TakeEscaped('"');
    if (!text || !reader.AtEnd()) return false;
    key[*name] = *text;
    return true;
  }
  const auto number = reader.TakeNumber();
  if (!number || !reader.AtEnd()) return false;
  key[*name] = *number;
  return true;
}

}  // namespace

bool NameLess::operator()(const std::string& left, const std::string& right) const {
  return automation::CompareText(left, right) < 0;
}

std::optional<Settings> ReadSettings(std::string_view text) {
  Settings settings;
  SettingsKey* key = nullptr;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end + 1);
    if (line == kEnd) return text.empty() ? std::optional(std::move(settings)) : std::nullopt;
    if (line.empty() || line.starts_with('#')) continue;
    if (const auto name = ReadKey(line)) {
      key = &settings[*name];
    } else if (key == nullptr || !ReadValue(line, *key)) {
      return std::nullopt;
    }
  }
  return std::nullopt;
}

std::string WriteSettings(const Settings& settings) {
  std::string text = kHeading;
  for (const auto& [keyName, key] : settings) {
    text += "\n[" + Escaped(keyName) + "]\n";
    for (const auto& [name, value] : key) {
      text += '"' + Escaped(name) + "\" = ";
      if (const auto* number = std::get_if<std::int32_t>(&value)) {
        text += std::to_string(*number);
      } else {
        text += '"' + Escaped(std::get<std::string>(value)) + '"';
      }
      text += '\n';
    }
  }
  return text + '\n' + std::string(kEnd) + '\n';
}

std::string NormalKey(std::string_view key) {
  std::string result;
  for (const char c : key) {
    if (c != '\\' || (!result.empty() && result.back() != '\\')) result += c;
  }
  if (result.ends_with('\\')) result.pop_back();
  return result;
}

}  // namespace rangewerks::systems
