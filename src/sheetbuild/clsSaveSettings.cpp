#include "sheetbuild/clsSaveSettings.h"

#include "automation/conversions.h"
#include "errors/attempt.h"
#include "platform/basRegistry.h"

namespace rangewerks {

using automation::Locale;
using automation::Member;
using automation::MemberTable;
using automation::Variant;
using platform::Registry;

namespace {

constexpr const char* kUpdateSheetForBrowse = "Add Browse to Sheet";
constexpr const char* kColumnHeading = "ColumnHeading";
constexpr const char* kColumnFormat = "ColumnFormat";
constexpr const char* kToolTips = "ToolTips";
constexpr const char* kLengthValidation = "LengthValidation";
constexpr const char* kRangeWithColors = "RangeWithColors";

}  // namespace

std::string clsSaveSettings::SettingsKey() const {
  static const Member programName("ProgramName");
  const std::string common = basRegistry::kProductKey + "\\Settings";
  std::string key = common;
  Attempt([&] {
    const automation::Object caller = callingObject_ ? callingObject_() : automation::Object();
    key = common + "\\" + ToString(caller.Get(programName), Locale::Current());
  });
  return key;
}

Variant clsSaveSettings::ReadSetting(const std::string& sName, const Variant& vDefault) const {
  const Variant value =
      basRegistry::ReadRegistryValue(*registry_, Registry::kCurrentUser, SettingsKey(), sName);
  return value == Variant("") ? vDefault : value;
}

bool clsSaveSettings::IsOn(const std::string& sName, bool whenAbsent) const {
  return ToBoolean(ReadSetting(sName, whenAbsent), Locale::Current());
}

void clsSaveSettings::WriteSetting(const std::string& sName, const Variant& vValue) const {
  basRegistry::WriteRegistryValue(*registry_, Registry::kCurrentUser, SettingsKey(), sName, vValue,
                                  false);
}

void clsSaveSettings::SaveSettings() {
  WriteSetting(kColumnHeading, columnHeading_);
  WriteSetting(kColumnFormat, columnFormat_);
  WriteSetting(kToolTips, toolTips_);
  WriteSetting(kLengthValidation, lengthValidation_);
  WriteSetting(kRangeWithColors, rangeWithColors_);
  WriteSetting(kUpdateSheetForBrowse, updateSheetForBrowse_);
}

void clsSaveSettings::LoadSettings() {
  columnHeading_ = IsOn(kColumnHeading, true);
  columnFormat_ = IsOn(kColumnFormat, true);
  toolTips_ = IsOn(kToolTips, true);
  lengthValidation_ = IsOn(kLengthValidation, true);
  rangeWithColors_ = IsOn(kRangeWithColors, true);
  updateSheetForBrowse_ = IsOn(kUpdateSheetForBrowse, false);
}

const MemberTable& clsSaveSettings::Members() const {
  using C = clsSaveSettings;
  static const char* const kBrowse = "Whether the sheet is updated for browse.";
  static const char* const kHeading = "Whether column headings are added.";
  static const char* const kFormat = "Whether the number format is applied.";
  static const char* const kMessages = "Whether input messages are added.";
  static const char* const kValidation = "Whether validation is added.";
  static const char* const kColors = "Kept for callers; the library doesn't use it.";
  static const MemberTable table =
      MemberTable::For<C>("clsSaveSettings")
          .Get(1, "UpdateSheetForBrowse", &C::get_UpdateSheetForBrowse, kBrowse)
          .Let(1, "UpdateSheetForBrowse", &C::let_UpdateSheetForBrowse, kBrowse)
          .Get(2, kColumnHeading, &C::get_ColumnHeading, kHeading)
          .Let(2, kColumnHeading, &C::let_ColumnHeading, kHeading)
          .Get(3, kColumnFormat, &C::get_ColumnFormat, kFormat)
          .Let(3, kColumnFormat, &C::let_ColumnFormat, kFormat)
          .Get(4, kToolTips, &C::get_ToolTips, kMessages)
          .Let(4, kToolTips, &C::let_ToolTips, kMessages)
          .Get(5, kLengthValidation, &C::get_LengthValidation, kValidation)
          .Let(5, kLengthValidation, &C::let_LengthValidation, kValidation)
          .Get(6, kRangeWithColors, &C::get_RangeWithColors, kColors)
          .Let(6, kRangeWithColors, &C::let_RangeWithColors, kColors)
          .Method(7, "SaveSettings", &C::SaveSettings, {},
                  "Stores the options for the person and the calling program.")
          .Method(8, "LoadSettings", &C::LoadSettings, {},
                  "Loads the options of the person and the calling program.");
  return table;
}

}  // namespace rangewerks
