// Data files as JSON.
#include <algorithm>
#include <array>

#include "apps/rangewerks/closest_word.h"
#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/fill_data.h"
#include "apps/rangewerks/given_values.h"
#include "apps/rangewerks/json_document.h"
#include "apps/rangewerks/typed_value.h"

namespace rangewerks::apps {

namespace {

[[noreturn]] void Refuse(const std::string& place, const std::string& words) {
  throw Failure(place + ": " + words);
}

[[noreturn]] void RefuseValue(const std::string& place, const Json& found,
                              const std::string& expected) {
  Refuse(place, "found " + ShownJson(found) + ", expected " + expected);
}

void RequireObject(const std::string& place, const Json& value) {
  if (!value.is_object()) RefuseValue(place, value, "an object, {…}");
}

class FillReader {
 public:
  explicit FillReader(const clsInterfaceRangeList& list) : given_(list) {}

  std::vector<GivenValue> Read(const Json& document) {
    RequireObject("the whole file", document);
    // The others are those of a file that "read" has written.
    constexpr auto kFields =
        std::to_array<std::string_view>({"header", "rows", "book", "sheet", "ranges", "errors"});
    for (const auto& [field, value] : document.items()) {
      if (std::ranges::find(kFields, field) == kFields.end()) {
        Refuse('/' + PointerPart(field),
               "there is no field of this name" + DidYouMean(field, kFields));
      }
    }
    if (const auto header = document.find("header"); header != document.end()) {
      ReadValues("/header", *header, 0);
    }
    if (const auto rows = document.find("rows"); rows != document.end()) ReadRows(*rows);
    return given_.Take();
  }

 private:
  void ReadRows(const Json& rows) {
    if (!rows.is_array()) RefuseValue("/rows", rows, "a list, […]");
    std::int32_t row = 0;
    for (const Json& element : rows) {
      const std::string place = "/rows/" + std::to_string(row++);
      RequireObject(place, element);
      const auto values = element.find("values");
      if (values != element.end() && values->is_object() && element.contains("row")) {
        RequireOnlyRowAndValues(place, element);
        ReadValues(place + "/values", *values, RowOf(place + "/row", element["row"]));
      } else {
        ReadValues(place, element, row);
      }
    }
  }

  static void RequireOnlyRowAndValues(const std::string& place, const Json& element) {
    for (const auto& [field, value] : element.items()) {
      if (field == "row" || field == "values") continue;
      Refuse(place + '/' + PointerPart(field),
             R"(beside "row" and "values" there is no other field)");
    }
  }

  static std::int32_t RowOf(const std::string& place, const Json& row) {
    if (row.is_number_unsigned()) {
      const auto number = row.get<std::uint64_t>();
      if (number >= 1 && number <= std::uint64_t{kMostRows}) {
        return static_cast<std::int32_t>(number);
      }
    }
    RefuseValue(place, row, "a whole number from 1 to " + std::to_string(kMostRows));
  }

  void ReadValues(const std::string& pointer, const Json& values, std::int32_t row) {
    RequireObject(pointer, values);
    for (const auto& [name, value] : values.items()) {
      const std::string place = pointer + '/' + PointerPart(name) +
                                (row == 0 ? "" : " (row " + std::to_string(row) + ")");
      const clsExInputRange& range = given_.Range(name, place);
      const Json& plain = value.is_object() ? PlainOf(place, value) : value;
      if (!plain.is_null()) Add(range, row, plain, place);
    }
  }

  /// The value in {"found": …, "value": …}; null when it wasn't found.
  static const Json& PlainOf(const std::string& place, const Json& value) {
    static const Json nothing;
    const bool isRead = value.size() == 2 && value.contains("found") && value.contains("value") &&
                        value["found"].is_boolean();
    if (!isRead) {
      RefuseValue(place, value, R"(a plain value, or {"found": true, "value": …})");
    }
    return value["found"].get<bool>() ? value["value"] : nothing;
  }

  void Add(const clsExInputRange& range, std::int32_t row, const Json& plain,
           const std::string& place) {
    auto value = ValueOfJson(plain, range.get_RangeDataType());
    if (!value) RefuseValue(place, plain, ExpectedInJson(range.get_RangeDataType()));
    given_.Add({range.get_RangeName(), row, std::move(*value), place});
  }

  GivenValues given_;
};

}  // namespace

std::vector<GivenValue> ParseFillJson(const std::string& text, const clsInterfaceRangeList& list) {
  return FillReader(list).Read(ParseJson(text));
}

}  // namespace rangewerks::apps
