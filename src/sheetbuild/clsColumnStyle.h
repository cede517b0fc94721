// One set of a person's colours for ranges on a sheet.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "automation/member_table.h"
#include "platform/clsRegistrySetting.h"

namespace rangewerks {

/// Colours are numbers of the form 0xBBGGRR. Until a load they are 0 and the switches false.
class clsColumnStyle final : public automation::AutomationClass {
 public:
  explicit clsColumnStyle(std::shared_ptr<platform::Registry> registry)
      : registry_(std::move(registry)) {}

  const automation::MemberTable& Members() const override;

  std::int32_t get_HeadingColour() const { return headingColour_; }
  void let_HeadingColour(std::int32_t value) { headingColour_ = value; }
  std::int32_t get_ColumnColour() const { return columnColour_; }
  void let_ColumnColour(std::int32_t value) { columnColour_ = value; }
  bool get_EnableRangeColor() const { return enableRangeColor_; }
  void let_EnableRangeColor(bool value) { enableRangeColor_ = value; }
  bool get_EnableAlternateRangeColor() const { return enableAlternateRangeColor_; }
  void let_EnableAlternateRangeColor(bool value) { enableAlternateRangeColor_ = value; }
  /// The key of the set, under HKEY_CURRENT_USER. Only reading it makes loads and saves use it.
  const std::string& get_KeyPath();
  void let_KeyPath(const std::string& value) { keyPath_ = value; }

  // For the library alone.

  /// Reads the four values: white and true for those that are missing. A value that can't be
  /// converted leaves its property as it is. Never fails. A light green of the old palette
  /// (0x80FF80) becomes the one of today (0xFF80).
  void LoadColumnStyle();
  /// Stores the four values.
  void SaveColumnStyle();

 private:
  std::int32_t LoadedColour(const std::string& name);
  bool LoadedSwitch(const std::string& name);

  std::int32_t headingColour_ = 0;
  std::int32_t columnColour_ = 0;
  bool enableRangeColor_ = false;
  bool enableAlternateRangeColor_ = false;
  std::string keyPath_;
  clsRegistrySetting registry_;
};

}  // namespace rangewerks
