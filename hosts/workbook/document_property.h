// The custom properties of one workbook as plain data.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "automation/variant.h"

namespace rangewerks::hosts::workbook {

/// What a property holds, by the numbers of the object model.
enum class PropertyType : std::int32_t {
  Number = 1,  ///< a whole number of 32 bits
  Boolean = 2,
  Date = 3,    ///< to the second, from 30 December 1899 on
  String = 4,  ///< up to 255 characters
  Float = 5,
};

struct DocumentPropertyData {
  std::string name;
  PropertyType type = PropertyType::String;
  automation::Variant value;  ///< of exactly that kind
  bool deleted = false;
};
using DocumentPropertyPointer = std::shared_ptr<DocumentPropertyData>;
using DocumentPropertyList = std::vector<DocumentPropertyPointer>;

/// The property of that name without regard to case, or null.
DocumentPropertyPointer FindProperty(const DocumentPropertyList& properties, std::string_view name);

/// Adds a property at the end. Raises 1004 for a name that is empty or taken and for a type that
/// isn't one, and as PutProperty.
DocumentPropertyPointer AddProperty(DocumentPropertyList& properties, const std::string& name,
                                    std::int32_t type, const automation::Variant& value);

/// Gives a property a value, converted to its type. Raises 13 or 6 for one that can't be, 1004 for
/// a text that is too long and a date that is too early.
void PutProperty(DocumentPropertyData& property, const automation::Variant& value);

}  // namespace rangewerks::hosts::workbook
