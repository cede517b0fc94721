#include "hosts/libreoffice/cell_reading.h"

#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XFormulaTokens.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/table/CellContentType.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include "automation/conversions.h"
#include "automation/error.h"
#include "hosts/common/cell_errors.h"
#include "hosts/libreoffice/book.h"
#include "hosts/libreoffice/cell_errors.h"
#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::Array;
using automation::Date;
using automation::Variant;
using css::table::CellContentType_EMPTY;
using css::table::CellContentType_FORMULA;
using css::table::CellContentType_TEXT;
using Cell = Reference<css::table::XCell>;
using DataArray = Sequence<Sequence<Any>>;
using TextArray = Sequence<Sequence<OUString>>;

constexpr std::int64_t kLargestBlock = std::int64_t{1} << 22;

/// A boolean or an error value that was entered as such. The office keeps both as formulas.
std::optional<std::string> ConstantText(std::string_view nativeFormula) {
  if (nativeFormula == "=TRUE()") return "TRUE";
  if (nativeFormula == "=FALSE()") return "FALSE";
  if (!nativeFormula.starts_with("=#")) return std::nullopt;
  nativeFormula.remove_prefix(1);
  if (!CellErrorOf(nativeFormula)) return std::nullopt;
  return std::string(nativeFormula);
}

Variant NumberAs(FormatKind kind, double number, Book& book) {
  if (kind == FormatKind::Boolean && (number == 0 || number == 1)) return number == 1;
  if (kind != FormatKind::Date) return number;
  const double serial = number + book.FirstDay();
  return serial < 0 ? Variant(number) : Variant(Date{serial});
}

/// A formula whose cell has no format of its own shows a date or a boolean as what it is.
FormatKind KindOfResult(const Cell& cell, Book& book) {
  return book.NumberFormats().KindOfShown(ToUtf8(As<css::text::XTextRange>(cell)->getString()));
}

/// Whether a result of 0 or 1 is a boolean that was entered as such. In an xls file it comes
/// without a sign of its being one, and shows as a number.
bool IsBooleanConstant(double number, const OUString& nativeFormula) {
  return (number == 0 || number == 1) &&
         (nativeFormula == "=TRUE()" || nativeFormula == "=FALSE()");
}

/// A text as the office gives it for entering again: an apostrophe stands in front of what would
/// otherwise be read as a number, and of another apostrophe.
std::string TextOfEntry(const OUString& entry) {
  return ToUtf8(entry.startsWith("'") ? entry.copy(1) : entry);
}

Variant ReadResult(const Cell& cell, Book& book) {
  if (const std::int32_t error = cell->getError(); error != 0) return ErrorOfCode(error);
  const DataArray data = As<css::sheet::XCellRangeData>(cell)->getDataArray();
  const Any& result = data[0][0];
  if (OUString text; result >>= text) return ToUtf8(text);
  const auto number = Extract<double>(result);
  if (IsBooleanConstant(number, cell->getFormula())) return number == 1;
  FormatKind kind = book.NumberFormats().KindOf(FormatKeyOf(cell));
  if (kind == FormatKind::General) kind = KindOfResult(cell, book);
  return NumberAs(kind, number, book);
}

Variant ReadCell(const Cell& cell, Book& book) {
  switch (cell->getType()) {
    case CellContentType_EMPTY:
      return {};
    case CellContentType_TEXT:
      return TextOfEntry(cell->getFormula());
    case CellContentType_FORMULA:
      return ReadResult(cell, book);
    default:
      return NumberAs(book.NumberFormats().KindOf(FormatKeyOf(cell)), cell->getValue(), book);
  }
}

/// The content of a block as the office gives it: results, and what was entered.
struct BlockContent {
  explicit BlockContent(const Reference<css::table::XCellRange>& block)
      : results(As<css::sheet::XCellRangeData>(block)->getDataArray()),
        entries(As<css::sheet::XCellRangeFormula>(block)->getFormulaArray()) {}

  const Any& Result(std::int32_t row, std::int32_t column) const {
    return results[row - 1][column - 1];
  }
  const OUString& Entry(std::int32_t row, std::int32_t column) const {
    return entries[row - 1][column - 1];
  }
  /// A text that begins with "=" is none.
  bool IsFormula(std::int32_t row, std::int32_t column) const {
    const OUString& entry = Entry(row, column);
    OUString text;
    return entry.startsWith("=") && !((Result(row, column) >>= text) && text == entry);
  }

  const DataArray results;
  const TextArray entries;
};

/// The value of a cell that isn't a number; numbers are left for later, as they depend on formats.
Variant ValueBesideNumbers(const BlockContent& content, std::int32_t row, std::int32_t column,
                           const Cell& cell) {
  const Any& result = content.Result(row, column);
  if (OUString text; result >>= text) {
    const bool isEmpty = text.isEmpty() && content.Entry(row, column).isEmpty();
    return isEmpty ? Variant() : Variant(ToUtf8(text));
  }
  if (!result.hasValue()) return ErrorOfCode(cell->getError());
  const auto number = Extract<double>(result);
  if (IsBooleanConstant(number, content.Entry(row, column))) return number == 1;
  return number;
}

/// Turns the numbers of one part of the block into what its format makes of them.
void ApplyFormat(const FormattedArea& part, const Area& area, const BlockContent& content,
                 Sheet& sheet, Array& values) {
  Book& book = sheet.OfBook();
  const FormatKind kind = book.NumberFormats().KindOf(part.key);
  if (kind == FormatKind::Other || kind == FormatKind::Text) return;
  for (std::int32_t row = part.area.row; row <= part.area.LastRow(); ++row) {
    for (std::int32_t column = part.area.column; column <= part.area.LastColumn(); ++column) {
      Variant& value = values.At(row - area.row + 1, column - area.column + 1);
      const auto* number = value.TryGet<double>();
      if (number == nullptr) continue;
      FormatKind shown = kind;
      if (kind == FormatKind::General) {
        if (!content.IsFormula(row - area.row + 1, column - area.column + 1)) continue;
        shown = KindOfResult(sheet.Cell(row, column), book);
      }
      value = NumberAs(shown, *number, book);
    }
  }
}

Variant ReadBlock(Sheet& sheet, const Area& area) {
  RequireMemoryFor(area);
  const BlockContent content(sheet.Block(area));
  Array values(area.rows, area.columns);
  bool hasNumbers = false;
  for (std::int32_t row = 1; row <= area.rows; ++row) {
    for (std::int32_t column = 1; column <= area.columns; ++column) {
      Variant& value = values.At(row, column);
      const bool isError = !content.Result(row, column).hasValue();
      const Cell cell = isError ? sheet.Cell(area.row + row - 1, area.column + column - 1) : Cell();
      value = ValueBesideNumbers(content, row, column, cell);
      hasNumbers = hasNumbers || value.TryGet<double>() != nullptr;
    }
  }
  if (!hasNumbers) return values;
  for (const FormattedArea& part : FormatsOf(sheet, area)) {
    ApplyFormat(part, area, content, sheet, values);
  }
  return values;
}

// --- what was entered ----------------------------------------------------------------------------

std::string NumberText(double number) { return ToString(number, automation::Locale()); }

std::string FormulaText(Sheet& sheet, std::int32_t row, std::int32_t column, const Cell& cell) {
  const std::string native = ToUtf8(cell->getFormula());
  if (const auto constant = ConstantText(native)) return *constant;
  const css::table::CellAddress place(sheet.Index(), column - 1, row - 1);
  const std::string text =
      sheet.OfBook().FormulaTexts().Write(As<css::sheet::XFormulaTokens>(cell)->getTokens(), place);
  return text.empty() ? native : "=" + text;
}

Variant ReadCellFormula(Sheet& sheet, std::int32_t row, std::int32_t column) {
  const Cell cell = sheet.Cell(row, column);
  switch (cell->getType()) {
    case CellContentType_EMPTY:
      return "";
    case CellContentType_TEXT:
      return TextOfEntry(cell->getFormula());
    case CellContentType_FORMULA:
      return FormulaText(sheet, row, column, cell);
    default:
      return NumberText(cell->getValue());
  }
}

Variant ReadBlockFormulas(Sheet& sheet, const Area& area) {
  RequireMemoryFor(area);
  const BlockContent content(sheet.Block(area));
  Array texts(area.rows, area.columns);
  for (std::int32_t row = 1; row <= area.rows; ++row) {
    for (std::int32_t column = 1; column <= area.columns; ++column) {
      const Any& result = content.Result(row, column);
      double number = 0;
      OUString text;
      if (content.IsFormula(row, column)) {
        texts.At(row, column) =
            ReadCellFormula(sheet, area.row + row - 1, area.column + column - 1);
      } else if (result >>= number) {
        texts.At(row, column) = NumberText(number);
      } else {
        result >>= text;
        texts.At(row, column) = ToUtf8(text);
      }
    }
  }
  return texts;
}

/// The formulas of a part of the sheet, without the constants among them.
std::int64_t CountFormulas(Sheet& sheet, const Area& part) {
  const BlockContent content(sheet.Block(part));
  std::int64_t count = 0;
  for (std::int32_t row = 1; row <= part.rows; ++row) {
    for (std::int32_t column = 1; column <= part.columns; ++column) {
      const bool isFormula = content.IsFormula(row, column) &&
                             !ConstantText(ToUtf8(content.Entry(row, column))).has_value();
      count += isFormula ? 1 : 0;
    }
  }
  return count;
}

}  // namespace

void RequireMemoryFor(const Area& area) {
  if (area.Count() > kLargestBlock) {
    throw automation::Error(static_cast<std::int32_t>(automation::ErrorNumber::OutOfMemory),
                            kErrorSource,
                            AddressOf(area) + " has too many cells to be held at once");
  }
}

Variant ReadValue(Sheet& sheet, const Area& area) {
  if (area.IsOneCell()) return ReadCell(sheet.Cell(area.row, area.column), sheet.OfBook());
  return ReadBlock(sheet, area);
}

Variant ReadFormula(Sheet& sheet, const Area& area) {
  if (area.IsOneCell()) return ReadCellFormula(sheet, area.row, area.column);
  return ReadBlockFormulas(sheet, area);
}

Variant ReadHasFormula(Sheet& sheet, const Area& area) {
  RequireMemoryFor(area);
  if (area.IsOneCell()) {
    const Cell cell = sheet.Cell(area.row, area.column);
    return cell->getType() == CellContentType_FORMULA &&
           !ConstantText(ToUtf8(cell->getFormula())).has_value();
  }
  const auto found = As<css::sheet::XCellRangesQuery>(sheet.Block(area))
                         ->queryContentCells(static_cast<sal_Int16>(css::sheet::CellFlags::FORMULA))
                         ->getRangeAddresses();
  std::int64_t formulas = 0;
  for (const auto& part : Elements(found)) {
    // Asked about columns beyond those in use, the office answers with cells of other columns.
    const auto inside = CommonArea(area, AreaOf(part));
    if (inside) formulas += CountFormulas(sheet, *inside);
  }
  if (formulas == 0) return false;
  return formulas == area.Count() ? Variant(true) : Variant(automation::Null());
}

}  // namespace rangewerks::hosts::libreoffice
