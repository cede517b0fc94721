#include "sheetbuild/clsAnalyserStyles.h"

#include <string_view>

#include "platform/basRegistry.h"

namespace rangewerks {

const std::string clsAnalyserStyles::kRangeKey = basRegistry::kProductKey + "\\RangeProperties";
const std::string clsAnalyserStyles::kAlternateKey =
    basRegistry::kProductKey + "\\AltRangeProperties";

namespace {

constexpr std::string_view kAdjustmentColumn = "\\ColourPallet\\AdjustmentColumn";
constexpr std::string_view kAlternateAdjustmentColumn = "\\ColourPallet\\AlternateAdjustmentColumn";

void Load(clsColumnStyle& style, std::string_view ending) {
  // Reading KeyPath is what makes the style use it, so a key without its ending is used once.
  if (!style.get_KeyPath().ends_with(ending)) {
    style.let_KeyPath(style.get_KeyPath() + std::string(ending));
  }
  style.LoadColumnStyle();
}

}  // namespace

const clsAnalyserStyles::Style& clsAnalyserStyles::Made(Style& style) const {
  if (!style) style = std::make_shared<clsColumnStyle>(registry_);
  return style;
}

void clsAnalyserStyles::SaveSettingsToRegistry() {
  get_AdjustmentColumn()->SaveColumnStyle();
  get_AlternateAdjustmentColumn()->SaveColumnStyle();
}

void clsAnalyserStyles::LoadSettingsFromRegistry() {
  Load(*get_AdjustmentColumn(), kAdjustmentColumn);
  Load(*get_AlternateAdjustmentColumn(), kAlternateAdjustmentColumn);
}

}  // namespace rangewerks
