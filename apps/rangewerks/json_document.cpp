#include "apps/rangewerks/json_document.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

#include "apps/rangewerks/failure.h"
#include "automation/text.h"

namespace rangewerks::apps {

namespace {

constexpr std::size_t kLongestShown = 60;  // characters of a found value in a message

/// Follows the parser through the text and refuses the second field of the same name.
class FieldWatch {
 public:
  using Event = Json::parse_event_t;

  void Follow(Event event, const Json& parsed) {
    switch (event) {
      case Event::object_start:
        NextElement();
        levels_.emplace_back();
        break;
      case Event::array_start:
        NextElement();
        levels_.emplace_back().isArray = true;
        break;
      case Event::object_end:
      case Event::array_end:
        levels_.pop_back();
        break;
      case Event::key:
        EnterField(parsed.get<std::string>());
        break;
      case Event::value:
        NextElement();
        break;
    }
  }

 private:
  struct Level {
    bool isArray = false;
    std::size_t count = 0;         // of the elements begun, for an array
    std::string field;             // the one that is being read, for an object
    std::set<std::string> fields;  // all so far
  };

  void NextElement() {
    if (!levels_.empty() && levels_.back().isArray) ++levels_.back().count;
  }

  void EnterField(const std::string& name) {
    Level& level = levels_.back();
    level.field = name;
    if (!level.fields.insert(name).second) {
      throw Failure(Pointer() + ": this field stands here a second time; leave one of the two out");
    }
  }

  std::string Pointer() const {
    std::string pointer;
    for (const Level& level : levels_) {
      pointer += '/' + (level.isArray ? std::to_string(level.count - 1) : PointerPart(level.field));
    }
    return pointer;
  }

  std::vector<Level> levels_;
};

/// The line and column of a byte, both counted from 1, the column in characters.
std::string PlaceOf(const std::string& text, std::size_t offset) {
  const std::string_view before = std::string_view(text).substr(0, offset);
  const std::size_t lineStart = before.rfind('\n') + 1;  // 0 when there is none
  return "line " + std::to_string(std::ranges::count(before, '\n') + 1) + ", column " +
         std::to_string(automation::Length(before.substr(lineStart)) + 1);
}

/// The parser's words without its own name, number and place in front.
std::string WordsOf(const Json::parse_error& error) {
  const std::string words = error.what();
  constexpr std::string_view kMark = "syntax error ";
  const std::size_t start = words.find(kMark);
  return start == std::string::npos ? words : words.substr(start);
}

}  // namespace

Json ParseJson(const std::string& text) {
  FieldWatch watch;
  try {
    return Json::parse(text, [&watch](int, Json::parse_event_t event, const Json& parsed) {
      watch.Follow(event, parsed);
      return true;
    });
  } catch (const Json::parse_error& error) {
    const std::size_t offset = error.byte > 0 ? error.byte - 1 : 0;
    throw Failure(PlaceOf(text, std::min(offset, text.size())) + ": " + WordsOf(error));
  } catch (const Json::out_of_range&) {
    throw Failure("the whole file: it has a number that is too great for any cell");
  }
}

std::string PointerPart(const std::string& name) {
  std::string part;
  for (const char each : name) {
    if (each == '~') {
      part += "~0";
    } else if (each == '/') {
      part += "~1";
    } else {
      part += each;
    }
  }
  return part;
}

std::string ShownJson(const Json& value) {
  if (value.is_object()) return "an object";
  if (value.is_array()) return "a list";
  std::string text = value.dump(-1, ' ', false, Json::error_handler_t::replace);
  if (automation::Length(text) <= kLongestShown) return text;
  return std::string(automation::Left(text, kLongestShown)) + "…";
}

}  // namespace rangewerks::apps
