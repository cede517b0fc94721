// What the typed proxies make of the results of their calls.
#pragma once

#include <string>

#include "automation/conversions.h"
#include "automation/variant.h"

namespace rangewerks::excel {

/// A result that is an object, as its typed reference.
template <class Proxy>
Proxy Typed(const automation::Variant& result) {
  return Proxy(result.AsObject());
}

inline std::string Text(const automation::Variant& result) {
  return ToString(result, automation::Locale::Current());
}

inline std::int32_t Long(const automation::Variant& result) {
  return ToLong(result, automation::Locale::Current());
}

}  // namespace rangewerks::excel
