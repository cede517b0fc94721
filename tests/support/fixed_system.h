// A system that answers as a test tells it to.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "automation/error.h"
#include "platform/system.h"
#include "support/memory_registry.h"

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
  std::string AccountName() const override { return account_; }
  automation::Locale CurrentLocale() const override { return {}; }
  automation::Date Now() const override {
    ++timesAskedForNow_;
    return now_;
  }
  /// Whatever was offered under that name; 429 for all others.
  automation::Object CreateObject(const std::string& progId) const override {
    const auto found = objects_.find(progId);
    if (found == objects_.end())
      throw automation::Error(automation::ErrorNumber::CannotCreateObject);
    return found->second;
  }
  /// One registry in memory for as long as this lives.
  std::shared_ptr<platform::Registry> OpenRegistry() const override { return registry_; }

  void Offer(const std::string& progId, const automation::Object& object) {
    objects_[progId] = object;
  }
  bool FileExists(const std::string& path) const override {
    return std::find(files_.begin(), files_.end(), path) != files_.end();
  }
  void StartProgram(const std::string& path) const override {
    started_.push_back(path);
    if (!FileExists(path)) throw automation::Error(automation::ErrorNumber::FileNotFound);
  }

  /// Files that are there; programs can be started from them alone.
  void AddFile(const std::string& path) { files_.push_back(path); }
  /// What was to be started, in vain or not.
  const std::vector<std::string>& Started() const { return started_; }
  void RunAs(const std::string& account) { account_ = account; }
  void SetNow(automation::Date now) { now_ = now; }
  const std::shared_ptr<MemoryRegistry>& Settings() const { return registry_; }
  int TimesAskedForNow() const { return timesAskedForNow_; }
  int TimesAskedForUser() const { return timesAskedForUser_; }

 private:
  std::string libraryFile_;
  std::optional<std::string> user_;
  std::string account_;
  automation::Date now_;
  std::map<std::string, automation::Object> objects_;
  std::shared_ptr<MemoryRegistry> registry_ = std::make_shared<MemoryRegistry>();
  std::vector<std::string> files_;
  mutable std::vector<std::string> started_;
  mutable int timesAskedForNow_ = 0;
  mutable int timesAskedForUser_ = 0;
};

}  // namespace rangewerks::tests
