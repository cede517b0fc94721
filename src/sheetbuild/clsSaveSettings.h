// Which of the options for building ranges a person has ticked, for each program that uses the
// library.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "automation/member_table.h"
#include "platform/registry.h"

namespace rangewerks {

/// All options are false until LoadSettings.
class clsSaveSettings final : public automation::AutomationClass {
 public:
  /// Gives the program's object that the administration form holds at that moment, or none.
  using CallingObject = std::function<automation::Object()>;

  /// Options are kept under the calling object's ProgramName. Without an object, or when it can't
  /// tell its name, programs share one set.
  explicit clsSaveSettings(std::shared_ptr<platform::Registry> registry,
                           CallingObject callingObject = {})
      : registry_(std::move(registry)), callingObject_(std::move(callingObject)) {}

  const automation::MemberTable& Members() const override;

  /// Update the sheet for browse.
  bool get_UpdateSheetForBrowse() const { return updateSheetForBrowse_; }
  void let_UpdateSheetForBrowse(bool value) { updateSheetForBrowse_ = value; }
  /// Add column headings.
  bool get_ColumnHeading() const { return columnHeading_; }
  void let_ColumnHeading(bool value) { columnHeading_ = value; }
  /// Apply the number format.
  bool get_ColumnFormat() const { return columnFormat_; }
  void let_ColumnFormat(bool value) { columnFormat_ = value; }
  /// Add input messages.
  bool get_ToolTips() const { return toolTips_; }
  void let_ToolTips(bool value) { toolTips_ = value; }
  /// Add validation.
  bool get_LengthValidation() const { return lengthValidation_; }
  void let_LengthValidation(bool value) { lengthValidation_ = value; }
  /// Kept for callers; the library doesn't use it.
  bool get_RangeWithColors() const { return rangeWithColors_; }
  void let_RangeWithColors(bool value) { rangeWithColors_ = value; }

  void SaveSettings();
  /// What was never stored is true, UpdateSheetForBrowse false. Raises 13 for a stored text that is
  /// no boolean.
  void LoadSettings();

 private:
  std::string SettingsKey() const;
  automation::Variant ReadSetting(const std::string& sName,
                                  const automation::Variant& vDefault) const;
  bool IsOn(const std::string& sName, bool whenAbsent) const;
  void WriteSetting(const std::string& sName, const automation::Variant& vValue) const;

  std::shared_ptr<platform::Registry> registry_;
  CallingObject callingObject_;
  bool updateSheetForBrowse_ = false;
  bool columnHeading_ = false;
  bool columnFormat_ = false;
  bool toolTips_ = false;
  bool lengthValidation_ = false;
  bool rangeWithColors_ = false;
};

}  // namespace rangewerks
