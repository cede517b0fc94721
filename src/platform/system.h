// What the library asks of the operating system.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "automation/locale.h"
#include "automation/object.h"
#include "automation/variant.h"
#include "platform/registry.h"

namespace rangewerks::platform {

/// One implementation for each operating system, picked by the outermost code.
class System {
 public:
  virtual ~System() = default;

  /// The full path of the file that holds this library's code. Raises 53 when it can't be told.
  virtual std::string LibraryFile() const = 0;
  /// The name under which the person has logged on, or nothing when it can't be told.
  virtual std::optional<std::string> LoggedOnUser() const = 0;
  /// The name of the account that the program runs under; empty when it can't be told. It's the
  /// name of the person who has logged on where the system has no other.
  virtual std::string AccountName() const { return LoggedOnUser().value_or(std::string()); }
  /// The facts of the person's locale.
  virtual automation::Locale CurrentLocale() const = 0;
  /// The day and the time of the person's time zone, to the second.
  virtual automation::Date Now() const;
  /// A new automation object of the class with that program identifier, such as
  /// "Outlook.Application". Raises 429 when there is no such class here or it can't be started.
  virtual automation::Object CreateObject(const std::string& progId) const = 0;
  /// Where the person's settings are kept.
  virtual std::shared_ptr<Registry> OpenRegistry() const = 0;
  /// Whether there is a file, not a folder, of that path.
  virtual bool FileExists(const std::string& path) const = 0;
  /// Starts a program, without arguments, in a window of its own and doesn't wait for it. Raises 53
  /// when it can't be started.
  virtual void StartProgram(const std::string& path) const = 0;
};

}  // namespace rangewerks::platform
