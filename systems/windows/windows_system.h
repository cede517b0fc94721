// What the library asks of Windows.
//
//   systems::WindowsSystem system;
//   automation::Locale::SetCurrent(system.CurrentLocale());
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "automation/locale.h"
#include "platform/system.h"

namespace rangewerks::systems {

class WindowsSystem final : public platform::System {
 public:
  /// The DLL or the program that this code was linked into.
  std::string LibraryFile() const override;
  /// As the network provider knows the person, in at most 255 bytes.
  std::optional<std::string> LoggedOnUser() const override;
  /// In at most 255 bytes.
  std::string AccountName() const override;
  /// As the person has set it up, read anew at each call.
  automation::Locale CurrentLocale() const override;
  std::shared_ptr<platform::Registry> OpenRegistry() const override;
};

}  // namespace rangewerks::systems
