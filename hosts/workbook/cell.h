// What one cell holds, and how an entry becomes its content.
#pragma once

#include <string>
#include <string_view>

#include "automation/locale.h"
#include "automation/variant.h"
#include "hosts/workbook/cell_format.h"

namespace rangewerks::hosts::workbook {

using automation::Variant;

/// What one cell holds. The value is empty, a boolean, a double, a text or an error value; a date
/// is a double under a format that shows dates.
struct Content {
  Variant value;
  std::string formula;  ///< with its "=" in front; empty for a constant

  bool IsFormula() const noexcept { return !formula.empty(); }
  bool IsEmpty() const noexcept { return value.IsEmpty() && !IsFormula(); }
};

/// A content with the number format that it is entered and shown under.
struct Cell : Content {
  std::string format;  ///< empty stands for "General"
};

/// Whether a number format shows a date or a time: it has one of the letters y, m, d, h or s
/// outside quotes, brackets and escapes.
bool IsDateFormat(std::string_view format);

/// The value that callers see: a number under a date format is a date.
Variant ShownValue(const Cell& cell);

/// The content as entered, in English notation: a formula with "=", a number as "12.5", a date as
/// its serial number, "TRUE", "#DIV/0!", a text as it is, "" for an empty cell.
std::string EntryText(const Content& content);
/// What is seen in the cell, apart from what its number format makes of a number that is no date.
std::string ShownText(const Cell& cell, const automation::Locale& locale);

/// Enters a value as an assignment to Range.Value does (see Host). A text is read as a typed entry
/// in that locale. Raises 1004 for what a cell can't hold.
void Enter(Cell& cell, const Variant& value, const automation::Locale& locale);

/// Puts a value in as it is: texts aren't read, the format plays no part, apart from dates, which
/// get one.
void Put(Cell& cell, const Variant& value);
/// The same for what a formula shows; the formula stays.
void PutShown(Cell& cell, const Variant& value);

}  // namespace rangewerks::hosts::workbook
