// Settings in a file, for systems that have no registry.
#pragma once

#include <filesystem>
#include <string>

#include "platform/registry.h"

namespace rangewerks::systems {

/// Keeps the one root that belongs to the person. Other roots have no values and take none.
///
/// Several programs may use one file at once. A write replaces the file as a whole: whenever it's
/// cut off, the file holds what it held before or what it should hold, and the next write goes on
/// from there. Beside the file, `<file>.lock` keeps writers apart and `<file>.new` is what is being
/// written.
///
/// A file that isn't one of settings, or not all of one, becomes `<file>.damaged-1` (-2, …), which
/// is told on standard error, and the settings start empty.
class FileRegistry final : public platform::Registry {
 public:
  /// The file and its folder are made by the first write. Without a path there's nothing to read,
  /// and writing fails.
  explicit FileRegistry(std::filesystem::path file) : file_(std::move(file)) {}

  /// The person's file: rangewerks/settings in $XDG_CONFIG_HOME or else in ~/.config. Empty when
  /// the system knows no home.
  static std::filesystem::path PersonsFile();

  /// Statuses are numbers of the C library's errno.
  Reading Read(std::int32_t root, const std::string& key, const std::string& name) const override;
  std::int32_t Write(std::int32_t root, const std::string& key, const std::string& name,
                     const platform::RegistryValue& value) override;

 private:
  std::filesystem::path file_;
};

}  // namespace rangewerks::systems
