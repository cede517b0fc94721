#include "hosts/workbook/document_property.h"

#include <cmath>

#include "automation/conversions.h"
#include "automation/text.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::Date;
using automation::Locale;
using automation::Variant;

constexpr std::size_t kLongestText = 255;
constexpr double kSecondsOfDay = 86400;

std::string ShortText(const std::string& text, const std::string& name) {
  if (automation::Length(text) > kLongestText) {
    Refuse("The document property \"" + name + "\" can't hold " +
           std::to_string(automation::Length(text)) + " characters, 255 are the most");
  }
  return text;
}

double Finite(double number, const std::string& name) {
  if (!std::isfinite(number)) {
    Refuse("The document property \"" + name + "\" can't hold a number without end");
  }
  return number;
}

/// Files tell times by the second, so that is what a property holds.
Date ToSecond(Date date, const std::string& name) {
  if (date.serial < 0) {
    Refuse("The document property \"" + name + "\" can't hold a date before 30 December 1899");
  }
  const double day = std::floor(date.serial);
  return {day + std::round((date.serial - day) * kSecondsOfDay) / kSecondsOfDay};
}

Variant Converted(const Variant& value, PropertyType type, const std::string& name) {
  const Locale& locale = Locale::Current();
  switch (type) {
    case PropertyType::Number:
      return ToLong(value, locale);
    case PropertyType::Boolean:
      return ToBoolean(value, locale);
    case PropertyType::Date:
      return ToSecond(ToDate(value, locale), name);
    case PropertyType::Float:
      return Finite(ToDouble(value, locale), name);
    case PropertyType::String:
      return ShortText(ToString(value, locale), name);
  }
  return {};
}

}  // namespace

DocumentPropertyPointer FindProperty(const DocumentPropertyList& properties,
                                     std::string_view name) {
  for (const DocumentPropertyPointer& property : properties) {
    if (automation::EqualText(property->name, name)) return property;
  }
  return nullptr;
}

DocumentPropertyPointer AddProperty(DocumentPropertyList& properties, const std::string& name,
                                    std::int32_t type, const Variant& value) {
  if (name.empty()) Refuse("A document property can't be without a name");
  if (FindProperty(properties, name)) {
    Refuse("There is a document property \"" + name + "\" already");
  }
  if (type < static_cast<std::int32_t>(PropertyType::Number) ||
      type > static_cast<std::int32_t>(PropertyType::Float)) {
    Refuse(
        "A document property is of the type 1 (number), 2 (boolean), 3 (date), 4 (text) or 5 "
        "(number with decimals), not " +
        std::to_string(type));
  }
  auto property = std::make_shared<DocumentPropertyData>();
  property->name = name;
  property->type = static_cast<PropertyType>(type);
  PutProperty(*property, value);
  properties.push_back(property);
  return property;
}

void PutProperty(DocumentPropertyData& property, const Variant& value) {
  property.value = Converted(value, property.type, property.name);
}

}  // namespace rangewerks::hosts::workbook
