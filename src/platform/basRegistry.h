// Reading and writing settings. A value that can't be read is an empty text; what can't be written
// is dropped.
//
//   const Variant folder = basRegistry::ReadRegistryValue(registry, Registry::kCurrentUser,
//                                                         basRegistry::kProductKey, "Folder");
#pragma once

#include <cstdint>
#include <string>

#include "automation/variant.h"
#include "platform/registry.h"

namespace rangewerks::basRegistry {

/// All keys of the product lie under this one.
inline const std::string kProductKey = "Software\\Ostrel\\SheetConnectors";

/// The status of the last read or write: 0, or the system's number for what went wrong.
std::int32_t lLastRegResult();

/// The value: a text, up to its first zero character, or a 32-bit integer. The empty text when
/// there is none, and then `bFound` is false.
automation::Variant ReadRegistryValueEx(const platform::Registry& registry, std::int32_t hRoot,
                                        const std::string& sKey, const std::string& sValueName,
                                        bool& bFound);
automation::Variant ReadRegistryValue(const platform::Registry& registry, std::int32_t hRoot,
                                      const std::string& sKey, const std::string& sValueName);

/// Stores a value: as an integer when it is numeric, which true (-1), false (0) and texts such as
/// "123" are too, otherwise as a text without the blanks at its ends. `bForceString` stores every
/// value as a text. Raises 6 for a number that doesn't fit into 32 bits, and nothing else.
void WriteRegistryValue(platform::Registry& registry, std::int32_t hRoot, const std::string& sKey,
                        const std::string& sValueName, const automation::Variant& vValue,
                        bool bForceString);

}  // namespace rangewerks::basRegistry
