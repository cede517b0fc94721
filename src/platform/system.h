// What the library asks of the operating system.
#pragma once

#include <optional>
#include <string>

#include "automation/locale.h"

namespace rangewerks::platform {

/// One implementation for each operating system, picked by the outermost code.
class System {
 public:
  virtual ~System() = default;

  /// The full path of the file that holds this library's code. Raises 53 when it can't be told.
  virtual std::string LibraryFile() const = 0;
  /// The name under which the person has logged on, or nothing when it can't be told.
  virtual std::optional<std::string> LoggedOnUser() const = 0;
  /// The facts of the person's locale.
  virtual automation::Locale CurrentLocale() const = 0;
};

}  // namespace rangewerks::platform
