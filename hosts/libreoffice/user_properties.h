// The properties that people and programs give to a document, seen through the office's interfaces.
#pragma once

#include <com/sun/star/beans/XPropertyContainer.hpp>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "automation/variant.h"
#include "hosts/libreoffice/book.h"

namespace rangewerks::hosts::libreoffice {

/// What a property holds, by the numbers of the object model.
enum class PropertyType : std::int32_t {
  Number = 1,  ///< a whole number of 32 bits; a file keeps it as Float
  Boolean = 2,
  Date = 3,  ///< to the second
  String = 4,
  Float = 5,
};

/// The custom properties of one document. Names differ in more than case.
class UserProperties {
 public:
  explicit UserProperties(Book& book);

  /// In the office's order.
  std::vector<std::string> Names() const;
  /// The name as the document has it; none when it has no such property.
  std::optional<std::string> Find(const std::string& name) const;

  /// Raises 1004 when there is one of that name, or it can't be of that type.
  void Add(const std::string& name, std::int32_t type, const automation::Variant& value);
  void Remove(const std::string& name);

  // The name is as the document has it.
  PropertyType TypeOf(const std::string& name) const;
  automation::Variant Get(const std::string& name) const;
  /// Converts to the type that the property has. Raises 13 or 6 for a value that can't be.
  void Put(const std::string& name, const automation::Variant& value);

 private:
  void RequireWritable(const std::string& name) const;

  Book* book_;
  Reference<css::beans::XPropertyContainer> container_;
  Reference<css::beans::XPropertySet> values_;
};

}  // namespace rangewerks::hosts::libreoffice
