// The custom document properties of a workbook as typed references.
//
//   const excel::DocumentProperties properties = workbook.get_CustomDocumentProperties();
//   properties.get_Item("Browse").let_Default(true);
#pragma once

#include <string>

#include "platform/excel.h"

namespace rangewerks::excel {

class DocumentProperty : public Object {
 public:
  using Object::Object;
  explicit DocumentProperty(const Object& object) : Object(object) {}

  /// The default member, which is the value.
  Variant get_Default() const;
  void let_Default(const Variant& value) const;
};

class DocumentProperties : public Object {
 public:
  using Object::Object;
  explicit DocumentProperties(const Object& object) : Object(object) {}

  /// The property of that name. Fails when there is none.
  DocumentProperty get_Item(const std::string& name) const;
  /// Adds a property that isn't linked to a cell. Fails, as an answer, when the name exists.
  void Add(const std::string& name, DocumentPropertyType type, const Variant& value) const;
};

}  // namespace rangewerks::excel
