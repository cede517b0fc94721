// A person's colours for a range and for its alternate rows.
//
//   clsAnalyserStyles styles(registry);
//   styles.get_AdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kRangeKey);
//   styles.get_AlternateAdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kAlternateKey);
//   styles.LoadSettingsFromRegistry();  // completes the keys
//   styles.LoadSettingsFromRegistry();  // reads the person's colours
#pragma once

#include <memory>
#include <string>

#include "sheetbuild/clsColumnStyle.h"

namespace rangewerks {

class clsAnalyserStyles {
 public:
  using Style = std::shared_ptr<clsColumnStyle>;

  /// The keys of the two sets, to which a load adds their endings.
  static const std::string kRangeKey;
  static const std::string kAlternateKey;

  explicit clsAnalyserStyles(std::shared_ptr<platform::Registry> registry)
      : registry_(std::move(registry)) {}

  /// Each set is made when it's first asked for.
  const Style& get_AdjustmentColumn() { return Made(adjustmentColumn_); }
  void set_AdjustmentColumn(const Style& value) { adjustmentColumn_ = value; }
  const Style& get_AlternateAdjustmentColumn() { return Made(alternateAdjustmentColumn_); }
  void set_AlternateAdjustmentColumn(const Style& value) { alternateAdjustmentColumn_ = value; }

  /// Stores each set under the key of its last load.
  void SaveSettingsToRegistry();
  /// The first load of a key reads from the key as it was given, where nothing is stored, and
  /// leaves it with the set's ending; from then on loads read the person's colours. Never fails.
  void LoadSettingsFromRegistry();

 private:
  const Style& Made(Style& style) const;

  std::shared_ptr<platform::Registry> registry_;
  Style adjustmentColumn_;
  Style alternateAdjustmentColumn_;
};

}  // namespace rangewerks
