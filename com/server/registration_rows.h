// What a registered server looks like in the registry, as data.
#pragma once

#include <string>
#include <vector>

#include "com/server/server.h"

namespace rangewerks::com {

/// One text value, below the key that holds the classes.
struct RegistryRow {
  std::wstring key;
  std::wstring name;  ///< empty for the key's own value
  std::wstring value;
  /// Whether the builds for both word sizes write it to the same place.
  bool shared = false;
};

/// The rows of the type library and of each class, as they are for this DLL where it lies now.
/// Raises the system's failure when the type library can't be loaded.
std::vector<RegistryRow> RegistrationRows(const Server& server);

/// The key that shows that a class is served, with a server file of either word size.
std::wstring ServerKey(const ServedClass& served);

}  // namespace rangewerks::com
