// One value after another under one key of the registry.
//
//   clsRegistrySetting setting(registry);
//   setting.let_KeyPath("Software\\Ostrel\\SheetConnectors\\Settings");
//   setting.SaveSetting("ToolTips", true);
//   const Variant shown = setting.GetSetting("ToolTips", false);
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "automation/variant.h"
#include "platform/registry.h"

namespace rangewerks {

class clsRegistrySetting {
 public:
  using Variant = automation::Variant;

  /// As a value's name it stands for ValueName.
  static constexpr const char* kNever = "-NEVER-";

  explicit clsRegistrySetting(std::shared_ptr<platform::Registry> registry)
      : registry_(std::move(registry)) {}

  /// The name for calls that give none.
  const std::string& get_ValueName() const { return valueName_; }
  void let_ValueName(const std::string& value) { valueName_ = value; }
  /// What a save stores that gives no value. Takes each value that is read.
  const Variant& get_Value() const { return value_; }
  void let_Value(const Variant& value) { value_ = value; }
  /// The key under the root.
  const std::string& get_KeyPath() const { return keyPath_; }
  void let_KeyPath(const std::string& value) { keyPath_ = value; }
  /// HKEY_CURRENT_USER until it is set.
  std::int32_t get_RootKey() const { return rootKey_; }
  void let_RootKey(std::int32_t value) { rootKey_ = value; }

  /// Stores a value by the rules of WriteRegistryValue, which raises 6 for too great a number.
  void SaveSetting(const std::string& sValueName, const Variant& vValue = Variant::Missing());
  /// The stored value, or the default when there is none; Value is then the empty text.
  Variant GetSetting(const std::string& sValueName, const Variant& vDefault = {});

 private:
  const std::string& NameFor(const std::string& sValueName) const;

  std::shared_ptr<platform::Registry> registry_;
  std::string valueName_;
  Variant value_;
  std::string keyPath_;
  std::int32_t rootKey_ = platform::Registry::kCurrentUser;
};

}  // namespace rangewerks
