// Late-bound calls in few words, for tests: Get(sheet, "Range", {"A1"}).
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "automation/error.h"

namespace rangewerks::tests {

using automation::Argument;
using automation::Object;
using automation::Variant;

inline Variant Get(const Object& object, const char* member,
                   std::initializer_list<Argument> arguments = {}) {
  return object.Get(automation::Member(member), arguments);
}

/// A property or method that gives an object.
inline Object GetObject(const Object& object, const char* member,
                        std::initializer_list<Argument> arguments = {}) {
  return Get(object, member, arguments).AsObject();
}

/// A property that gives a text; another kind of value is no text, and shows as "<Double>".
inline std::string GetText(const Object& object, const char* member,
                           std::initializer_list<Argument> arguments = {}) {
  const Variant value = Get(object, member, arguments);
  return value.IsString() ? *value.TryGet<std::string>() : "<" + value.TypeName() + ">";
}

/// A property that gives a whole number of any kind.
inline std::int32_t GetLong(const Object& object, const char* member) {
  return ToLong(Get(object, member), automation::Locale());
}

inline void Let(const Object& object, const char* member, const Variant& value) {
  object.Let(automation::Member(member), value);
}

inline Variant Call(const Object& object, const char* member,
                    std::initializer_list<Argument> arguments = {}) {
  return object.Call(automation::Member(member), arguments);
}

inline Object AddName(const Object& names, const std::string& name, const Variant& refersTo) {
  static const automation::Member kAdd{"Add"};
  static const automation::Member kName{"Name"};
  static const automation::Member kRefersTo{"RefersTo"};
  const Variant added = names.Call(kAdd, {}, {{kName, name}, {kRefersTo, refersTo}});
  return added.AsObject();
}

/// The elements of a collection, in its order.
inline std::vector<Variant> Elements(const Object& collection) {
  std::vector<Variant> elements;
  const auto walk = collection.Enumerate();
  for (Variant element; walk->Next(element);) elements.push_back(element);
  return elements;
}

/// The number of the error that `step` raises; 0 when it raises none.
inline std::int32_t ErrorNumberOf(const std::function<void()>& step) {
  try {
    step();
  } catch (const automation::Error& error) {
    return error.Number();
  }
  return 0;
}

/// Whether `step` raises an error, whichever.
inline bool Fails(const std::function<void()>& step) { return ErrorNumberOf(step) != 0; }

}  // namespace rangewerks::tests
