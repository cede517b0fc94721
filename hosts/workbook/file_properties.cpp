#include "hosts/workbook/file_properties.h"

#include <cmath>
#include <limits>

#include "automation/conversions.h"
#include "hosts/workbook/file_cell.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::Date;
using automation::Variant;
using Json = nlohmann::ordered_json;

struct TypedValue {
  PropertyType type;
  Variant value;
};

/// A whole number with a decimal point is one with decimals.
TypedValue ReadValue(const JsonEntry& entry) {
  const auto& value = entry.Value();
  if (value.is_boolean()) return {PropertyType::Boolean, value.get<bool>()};
  if (value.is_string()) return {PropertyType::String, entry.Text()};
  if (value.is_number_integer()) {
    const double number = value.get<double>();
    if (number < std::numeric_limits<std::int32_t>::min() ||
        number > std::numeric_limits<std::int32_t>::max()) {
      entry.FailExpecting("a whole number of 32 bits, or a number with a decimal point");
    }
    return {PropertyType::Number, value.get<std::int32_t>()};
  }
  if (value.is_number()) return {PropertyType::Float, value.get<double>()};
  entry.FailExpecting("a number, a text, true or false");
}

TypedValue ReadTyped(const JsonEntry& entry) {
  entry.RequireKeys({"name", "value", "date"});
  if (entry.Has("value") == entry.Has("date")) {
    entry.Fail(R"(expected exactly one of the keys "value", "date")");
  }
  if (entry.Has("date")) return {PropertyType::Date, ReadFileDate(entry.At("date"))};
  return ReadValue(entry.At("value"));
}

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

std::string DateText(Date date) {
  const double day = std::floor(date.serial);
  const int seconds = static_cast<int>(std::lround((date.serial - day) * 86400));
  std::string text = automation::IsoDate({day});
  if (seconds != 0) {
    text += "T" + TwoDigits(seconds / 3600) + ":" + TwoDigits(seconds / 60 % 60) + ":" +
            TwoDigits(seconds % 60);
  }
  return text;
}

Json JsonOf(const DocumentPropertyData& property) {
  Json entry = {{"name", property.name}};
  const Variant& value = property.value;
  if (const auto* date = value.TryGet<Date>()) entry["date"] = DateText(*date);
  if (const auto* yes = value.TryGet<bool>()) entry["value"] = *yes;
  if (const auto* whole = value.TryGet<std::int32_t>()) entry["value"] = *whole;
  if (const auto* number = value.TryGet<double>()) entry["value"] = *number;
  if (const auto* text = value.TryGet<std::string>()) entry["value"] = *text;
  return entry;
}

}  // namespace

DocumentPropertyList ReadFileProperties(const JsonEntry& entry) {
  DocumentPropertyList properties;
  for (const JsonEntry& each : entry.Elements()) {
    const TypedValue typed = ReadTyped(each);
    const std::string name = each.At("name").Text();
    each.Do([&] {
      return AddProperty(properties, name, static_cast<std::int32_t>(typed.type), typed.value);
    });
  }
  return properties;
}

Json JsonOfProperties(const DocumentPropertyList& properties) {
  Json entries = Json::array();
  for (const DocumentPropertyPointer& property : properties) entries.push_back(JsonOf(*property));
  return entries;
}

}  // namespace rangewerks::hosts::workbook
