#include "hosts/workbook/json_entry.h"

#include <algorithm>
#include <set>

#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
namespace {

using Json = JsonEntry::Json;

/// "line 3, column 14" of a byte's place in a text; the bytes count from 1.
std::string LineAndColumn(const std::string& text, std::size_t byte) {
  const std::size_t before = std::min(byte == 0 ? 0 : byte - 1, text.size());
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(before);
  const auto line = std::count(text.begin(), end, '\n') + 1;
  const std::size_t lineEnd = before == 0 ? std::string::npos : text.rfind('\n', before - 1);
  const std::size_t column = lineEnd == std::string::npos ? before + 1 : before - lineEnd;
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

std::string Shown(const Json& value) {
  if (value.is_object()) return "an object";
  if (value.is_array()) return "an array of " + std::to_string(value.size()) + " entries";
  return value.dump();
}

/// A pointer's part: "~" and "/" have to be written in another way.
std::string Escaped(const std::string& key) {
  std::string escaped;
  for (const char c : key) {
    if (c == '~') {
      escaped += "~0";
    } else if (c == '/') {
      escaped += "~1";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

/// Watches the parser for keys that an object has twice: the last would silently win.
class KeyWatch {
 public:
  explicit KeyWatch(const std::string& path) : path_(path) {}

  bool operator()(int /*depth*/, Json::parse_event_t event, Json& parsed) {
    if (event == Json::parse_event_t::object_start) {
      seen_.emplace_back();
    } else if (event == Json::parse_event_t::object_end) {
      seen_.pop_back();
    } else if (event == Json::parse_event_t::key &&
               !seen_.back().insert(parsed.get<std::string>()).second) {
      Refuse(path_ + ": the key " + parsed.dump() + " stands twice in one object");
    }
    return true;
  }

 private:
  const std::string& path_;
  std::vector<std::set<std::string>> seen_;
};

}  // namespace

JsonEntry::File::File(std::string path, const std::string& text) : path_(std::move(path)) {
  try {
    root_ = Json::parse(text, KeyWatch(path_));
  } catch (const Json::parse_error& error) {
    Refuse(path_ + ": " + LineAndColumn(text, error.byte) + ": this isn't JSON: " + error.what());
  } catch (const Json::out_of_range& error) {
    Refuse(path_ + ": a number is too large: " + error.what());
  }
}

JsonEntry JsonEntry::At(const std::string& key) const {
  if (!value_->is_object()) FailExpecting("an object");
  const auto found = value_->find(key);
  if (found == value_->end()) Fail("the key \"" + key + "\" is missing");
  return {path_, &*found, pointer_ + "/" + Escaped(key)};
}

std::vector<std::pair<std::string, JsonEntry>> JsonEntry::Members() const {
  if (!value_->is_object()) FailExpecting("an object");
  std::vector<std::pair<std::string, JsonEntry>> members;
  for (const auto& [key, value] : value_->items()) {
    members.emplace_back(key, JsonEntry(path_, &value, pointer_ + "/" + Escaped(key)));
  }
  return members;
}

std::vector<JsonEntry> JsonEntry::Elements() const {
  if (!value_->is_array()) FailExpecting("an array");
  std::vector<JsonEntry> elements;
  for (const Json& value : *value_) {
    elements.push_back(JsonEntry(path_, &value, pointer_ + "/" + std::to_string(elements.size())));
  }
  return elements;
}

std::string JsonEntry::Text() const {
  if (!value_->is_string()) FailExpecting("a text");
  return value_->get<std::string>();
}

double JsonEntry::Number() const {
  if (!value_->is_number()) FailExpecting("a number");
  return value_->get<double>();
}

bool JsonEntry::Boolean() const {
  if (!value_->is_boolean()) FailExpecting("true or false");
  return value_->get<bool>();
}

void JsonEntry::RequireKeys(std::initializer_list<const char*> keys) const {
  std::string expected;
  for (const char* key : keys) {
    if (!expected.empty()) expected += ", ";
    expected.append("\"").append(key).append("\"");
  }
  for (const auto& [key, entry] : Members()) {
    const auto known = std::find_if(keys.begin(), keys.end(),
                                    [&name = key](const char* each) { return name == each; });
    if (known != keys.end()) continue;
    Fail(std::string("found the key \"").append(key).append("\", expected only ").append(expected));
  }
}

void JsonEntry::FailExpecting(const std::string& expected) const {
  Fail("found " + Shown(*value_) + ", expected " + expected);
}

void JsonEntry::Fail(const std::string& words) const {
  Refuse(*path_ + ": " + Place() + ": " + words);
}

}  // namespace rangewerks::hosts::workbook
