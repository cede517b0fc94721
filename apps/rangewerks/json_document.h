// A JSON text read strictly.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace rangewerks::apps {

/// Fields keep the order in which they are written.
using Json = nlohmann::ordered_json;

/// Reads a text. Raises Failure with "line 3, column 7: " in front for a fault of syntax, and with
/// the JSON pointer of the field in front when an object has the same field twice, of which other
/// readers would silently take one.
Json ParseJson(const std::string& text);

/// A name as a part of a JSON pointer: "~" becomes "~0" and "/" becomes "~1".
std::string PointerPart(const std::string& name);

/// The value as the file has it, for a message: shortened when it is long.
std::string ShownJson(const Json& value);

}  // namespace rangewerks::apps
