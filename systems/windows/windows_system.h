// What the library asks of Windows.
//
//   systems::WindowsSystem system;
//   automation::Locale::SetCurrent(system.CurrentLocale());
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "automation/locale.h"
#include "platform/system.h"

namespace rangewerks::systems {

class WindowsSystem final : public platform::System {
 public:
  /// Makes an object by its program identifier, or raises why it can't.
  using ObjectMaker = std::function<automation::Object(const std::string& progId)>;

  /// Without a maker there are no objects by name.
  explicit WindowsSystem(ObjectMaker objectMaker = {}) : objectMaker_(std::move(objectMaker)) {}

  /// The DLL or the program that this code was linked into.
  std::string LibraryFile() const override;
  /// As the network provider knows the person, in at most 255 bytes.
  std::optional<std::string> LoggedOnUser() const override;
  /// In at most 255 bytes.
  std::string AccountName() const override;
  /// As the person has set it up, read anew at each call.
  automation::Locale CurrentLocale() const override;
  /// What the maker makes; any failure of it is 429.
  automation::Object CreateObject(const std::string& progId) const override;
  std::shared_ptr<platform::Registry> OpenRegistry() const override;
  bool FileExists(const std::string& path) const override;
  void StartProgram(const std::string& path) const override;

 private:
  ObjectMaker objectMaker_;
};

}  // namespace rangewerks::systems
