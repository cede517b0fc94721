#include "sheetbuild/clsColumnStyle.h"

#include "automation/conversions.h"
#include "errors/attempt.h"

namespace rangewerks {

using automation::Locale;
using automation::MemberTable;

namespace {

constexpr const char* kHeadingColour = "HeadingColour";
constexpr const char* kColumnColour = "ColumnColour";
constexpr const char* kEnableRangeColor = "EnableRangeColor";
constexpr const char* kEnableAlternateRangeColor = "EnableAlternateRangeColor";

constexpr std::int32_t kWhite = 0xFFFFFF;
constexpr std::int32_t kOldLightGreen = 0x80FF80;
constexpr std::int32_t kLightGreen = 0xFF80;

}  // namespace

const std::string& clsColumnStyle::get_KeyPath() {
  registry_.let_KeyPath(keyPath_);
  return keyPath_;
}

std::int32_t clsColumnStyle::LoadedColour(const std::string& name) {
  const auto stored = [&] { return ToLong(registry_.GetSetting(name, kWhite), Locale::Current()); };
  return stored() == kOldLightGreen ? kLightGreen : stored();
}

bool clsColumnStyle::LoadedSwitch(const std::string& name) {
  return ToBoolean(registry_.GetSetting(name, true), Locale::Current());
}

void clsColumnStyle::LoadColumnStyle() {
  Attempt([&] { headingColour_ = LoadedColour(kHeadingColour); });
  Attempt([&] { columnColour_ = LoadedColour(kColumnColour); });
  Attempt([&] { enableRangeColor_ = LoadedSwitch(kEnableRangeColor); });
  Attempt([&] { enableAlternateRangeColor_ = LoadedSwitch(kEnableAlternateRangeColor); });
}

void clsColumnStyle::SaveColumnStyle() {
  registry_.SaveSetting(kHeadingColour, headingColour_);
  registry_.SaveSetting(kColumnColour, columnColour_);
  registry_.SaveSetting(kEnableRangeColor, enableRangeColor_);
  registry_.SaveSetting(kEnableAlternateRangeColor, enableAlternateRangeColor_);
}

const MemberTable& clsColumnStyle::Members() const {
  using C = clsColumnStyle;
  static const char* const kHeading = "Fill colour of the heading, as 0xBBGGRR.";
  static const char* const kColumn = "Fill colour of the cells, as 0xBBGGRR.";
  static const char* const kRange = "Whether ranges are coloured.";
  static const char* const kAlternate = "Whether alternate rows have a colour of their own.";
  static const char* const kKeyPath = "The key under which the set is stored.";
  static const MemberTable table =
      MemberTable::For<C>("clsColumnStyle")
          .Get(1, kHeadingColour, &C::get_HeadingColour, kHeading)
          .Let(1, kHeadingColour, &C::let_HeadingColour, kHeading)
          .Get(2, kColumnColour, &C::get_ColumnColour, kColumn)
          .Let(2, kColumnColour, &C::let_ColumnColour, kColumn)
          .Get(3, kEnableRangeColor, &C::get_EnableRangeColor, kRange)
          .Let(3, kEnableRangeColor, &C::let_EnableRangeColor, kRange)
          .Get(4, kEnableAlternateRangeColor, &C::get_EnableAlternateRangeColor, kAlternate)
          .Let(4, kEnableAlternateRangeColor, &C::let_EnableAlternateRangeColor, kAlternate)
          .Get(5, "KeyPath", &C::get_KeyPath, kKeyPath)
          .Let(5, "KeyPath", &C::let_KeyPath, kKeyPath);
  return table;
}

}  // namespace rangewerks
