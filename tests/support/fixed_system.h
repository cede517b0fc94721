// A system that answers as a test tells it to.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/system.h"

namespace rangewerks::tests {

class FixedSystem final : public platform::System {
 public:
  /// Without a user it can't tell who is logged on.
  explicit FixedSystem(std::string libraryFile, std::optional<std::string> user = std::nullopt)
      : libraryFile_(std::move(libraryFile)), user_(std::move(user)) {}

  std::string LibraryFile() const override { return libraryFile_; }
  std::optional<std::string> LoggedOnUser() const override {
    ++timesAskedForUser_;
    return user_;
  }
  automation::Locale CurrentLocale() const override { return {}; }

  int TimesAskedForUser() const { return timesAskedForUser_; }

 private:
  std::string libraryFile_;
  std::optional<std::string> user_;
  mutable int timesAskedForUser_ = 0;
};

}  // namespace rangewerks::tests
