// The text in which settings are kept: keys in brackets, each with its values below it, a text in
// quotes and a number without.
//
//   [Software\\Ostrel\\SheetConnectors\\Settings]
//   "ColumnHeading" = -1
//   "Title" = "Journals of \"today\""
//   end
//
// A backslash stands before a backslash, a quote or a closing bracket; \n and \r are line
// ends, \xHH any other control character. Lines that are empty or begin with # are passed over.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace rangewerks::systems {

/// A name as it was first spelled, compared without regard to case.
struct NameLess {
  bool operator()(const std::string& left, const std::string& right) const;
};

using SettingsKey = std::map<std::string, platform::RegistryValue, NameLess>;
/// Values by the name of their key and their own.
using Settings = std::map<std::string, SettingsKey, NameLess>;

/// Nothing when the text isn't such a text, or not all of one.
std::optional<Settings> ReadSettings(std::string_view text);
std::string WriteSettings(const Settings& settings);

/// A key as it is looked up: without backslashes at its ends and doubled ones, which say nothing.
std::string NormalKey(std::string_view key);

}  // namespace rangewerks::systems
