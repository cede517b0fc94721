// What the sheet keeps of a conditional format.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "hosts/workbook/area_values.h"
#include "hosts/workbook/cell_format.h"

namespace rangewerks::hosts::workbook {

/// A fill for cells while a formula holds. It lasts as long as it has cells.
struct ConditionalFormat {
  std::string formula;  ///< as it was given, with its "=" in front
  Color fill = kNoFill;
  AreaValues<bool> cells;
};
using ConditionalFormatPointer = std::shared_ptr<ConditionalFormat>;

/// The conditional formats of a sheet in the order in which they were added.
class ConditionalFormatList {
 public:
  /// A new one, which has to be given cells. Raises 1004 for a formula that doesn't begin with "=".
  ConditionalFormatPointer Add(const std::string& formula);
  /// Those that any of the cells has.
  std::vector<ConditionalFormatPointer> Of(const Area& area) const;
  /// Takes the cells out of a conditional format, or out of all; other cells keep theirs.
  void Remove(const Area& area, const ConditionalFormatPointer& format);
  void RemoveAll(const Area& area);

  const std::vector<ConditionalFormatPointer>& All() const noexcept { return formats_; }

 private:
  std::vector<ConditionalFormatPointer> formats_;
};

/// Raises 1004 for a conditional format that has been deleted.
void RequireThere(const ConditionalFormat& format);

}  // namespace rangewerks::hosts::workbook
