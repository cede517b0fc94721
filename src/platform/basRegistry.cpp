#include "platform/basRegistry.h"

#include "automation/conversions.h"
#include "automation/error.h"
#include "automation/text.h"

namespace rangewerks::basRegistry {

using automation::Error;
using automation::ErrorNumber;
using automation::Locale;
using automation::Variant;
using platform::Registry;
using platform::RegistryValue;

namespace {

std::int32_t& LastResult() {
  static std::int32_t result = Registry::kSuccess;
  return result;
}

RegistryValue Stored(const Variant& value, bool asText) {
  const Locale& locale = Locale::Current();
  if (!asText && IsNumeric(value, locale)) return ToLong(value, locale);
  return std::string(automation::Trim(ToString(value, locale)));
}

}  // namespace

std::int32_t lLastRegResult() { return LastResult(); }

Variant ReadRegistryValueEx(const Registry& registry, std::int32_t hRoot, const std::string& sKey,
                            const std::string& sValueName, bool& bFound) {
  const Registry::Reading reading = registry.Read(hRoot, sKey, sValueName);
  LastResult() = reading.status;
  bFound = reading.value.has_value();
  if (!bFound) return "";
  if (const auto* number = std::get_if<std::int32_t>(&*reading.value)) return *number;
  const auto& text = std::get<std::string>(*reading.value);
  return text.substr(0, text.find('\0'));
}

Variant ReadRegistryValue(const Registry& registry, std::int32_t hRoot, const std::string& sKey,
                          const std::string& sValueName) {
  bool found = false;
  return ReadRegistryValueEx(registry, hRoot, sKey, sValueName, found);
}

void WriteRegistryValue(Registry& registry, std::int32_t hRoot, const std::string& sKey,
                        const std::string& sValueName, const Variant& vValue, bool bForceString) {
  try {
    const RegistryValue value = Stored(vValue, bForceString);
    LastResult() = registry.Write(hRoot, sKey, sValueName, value);
  } catch (const Error& error) {
    if (error.Is(ErrorNumber::Overflow)) throw;  // the rest has no text to store
  }
}

}  // namespace rangewerks::basRegistry
