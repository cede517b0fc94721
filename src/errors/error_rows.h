// The rows of an error list, which a grid shows as they are.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "automation/variant.h"
#include "forms/grid.h"

namespace rangewerks {

/// Always has a row: an empty list is one row whose first cell is blank.
class ErrorRows final : public forms::GridRows {
 public:
  enum Column : std::size_t {
    kSheetRow = 0,     ///< the absolute row of the sheet, or "N/A"
    kIsWarning = 1,    ///< a boolean
    kFixed = 2,        ///< what the person types
    kDescription = 3,  ///< a text
    kSourceRow = 4,    ///< the row as the caller counts; not shown
    kUnused = 5,
    kColumns = 6,
  };

  std::size_t RowCount() const override { return rows_.size(); }
  /// Raises 9 outside of the rows and columns, as SetCell does.
  automation::Variant Cell(std::size_t row, std::size_t column) const override;
  void SetCell(std::size_t row, std::size_t column, const automation::Variant& value) override;

  /// One row, and the text of its first cell has nothing but blanks.
  bool IsEmpty() const;
  void AppendRow();
  /// Writes the last row, but for the columns that nothing is written to.
  void WriteLastRow(const automation::Variant& sheetRow, bool isWarning,
                    const automation::Variant& description, const automation::Variant& sourceRow);
  /// Back to one blank row.
  void Clear();

 private:
  using Row = std::array<automation::Variant, kColumns>;

  std::vector<Row> rows_ = std::vector<Row>(1);
};

}  // namespace rangewerks
