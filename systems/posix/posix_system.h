// What the library asks of Linux and other POSIX systems.
//
//   systems::PosixSystem system;
//   automation::Locale::SetCurrent(system.CurrentLocale());
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "automation/locale.h"
#include "platform/system.h"

namespace rangewerks::systems {

class PosixSystem final : public platform::System {
 public:
  /// The shared library or the program that this code was linked into.
  std::string LibraryFile() const override;
  /// The account name of the user that the process runs as.
  std::optional<std::string> LoggedOnUser() const override;
  /// As LC_ALL, the LC_ variables and LANG say, read anew at each call; the locale of the process
  /// has no say and isn't changed. The default Locale stands for the "C" locale, and for one that
  /// isn't installed.
  automation::Locale CurrentLocale() const override;
  /// "Outlook.Application" is the desktop's mail program (see DesktopMail); others there are none.
  automation::Object CreateObject(const std::string& progId) const override;
  /// A file of the person's (see FileRegistry).
  std::shared_ptr<platform::Registry> OpenRegistry() const override;
  bool FileExists(const std::string& path) const override;
  /// Its input and output lead nowhere.
  void StartProgram(const std::string& path) const override;
};

}  // namespace rangewerks::systems
