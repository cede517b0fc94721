#include "hosts/libreoffice/cell_writing.h"

#include <algorithm>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XFormulaTokens.hpp>
#include <com/sun/star/sheet/XSheetOperation.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>
#include <com/sun/star/util/CellProtection.hpp>

#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/book.h"
#include "hosts/libreoffice/cell_entry.h"
#include "hosts/libreoffice/cell_errors.h"
#include "hosts/libreoffice/cell_reading.h"
#include "hosts/libreoffice/failure.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::Array;
using automation::Locale;
using automation::Variant;

using Cell = Reference<css::table::XCell>;
using Kind = CellEntry::Kind;

std::string Place(Sheet& sheet, const Area& area) { return PlaceOf(sheet.Name(), area); }

bool IsLocked(const Reference<css::uno::XInterface>& cells) {
  return Property<css::util::CellProtection>(As<css::beans::XPropertySet>(cells), "CellProtection")
      .IsLocked;
}

bool IsAnyLocked(const Reference<css::table::XCellRange>& block) {
  const auto state =
      As<css::beans::XPropertyState>(block)->getPropertyState(ToUno("CellProtection"));
  if (state != css::beans::PropertyState_AMBIGUOUS_VALUE) return IsLocked(block);
  const auto groups =
      As<css::sheet::XUniqueCellFormatRangesSupplier>(block)->getUniqueCellFormatRanges();
  for (std::int32_t i = 0; i < groups->getCount(); ++i) {
    if (IsLocked(Extract<Reference<css::uno::XInterface>>(groups->getByIndex(i)))) return true;
  }
  return false;
}

/// The element of a block for a place in an area that may be larger.
Variant ElementFor(const Variant& value, std::int32_t row, std::int32_t column) {
  if (!value.IsArray()) return value;
  const Array& block = value.AsArray();
  if (block.Rows() == 1) row = 1;
  if (block.Columns() == 1) column = 1;
  if (row > block.Rows() || column > block.Columns()) {
    return automation::ErrorValue::FromNumber(excel::xlErrNA);
  }
  return block.At(row, column);
}

/// One write to an area: the entries are worked out for all cells before the first is written, so
/// that a value which is refused leaves everything as it was.
class Writing {
 public:
  Writing(Sheet& sheet, const Area& area) : sheet_(sheet), book_(sheet.OfBook()), area_(area) {}

  void Enter(const Variant& value, const Locale& locale) {
    formats_ = FormatsOf(sheet_, area_);
    entries_.resize(static_cast<std::size_t>(area_.Count()));
    for (const FormattedArea& part : formats_) ReadEntries(part, value, locale);
    PutNewFormats();
    if (area_.IsOneCell()) {
      PutOne(area_.row, area_.column, entries_.front());
    } else {
      PutAll();
    }
    if (KeepFormats()) PutNewFormats();
  }

 private:
  struct Placed {
    CellEntry entry;
    std::int32_t newFormat = kNoFormat;
  };
  static constexpr std::int32_t kNoFormat = -1;

  Placed& At(std::int32_t row, std::int32_t column) {
    return entries_[static_cast<std::size_t>(row - area_.row) *
                        static_cast<std::size_t>(area_.columns) +
                    static_cast<std::size_t>(column - area_.column)];
  }

  /// One element of what is written; a word of the office's language for true or false is one.
  Variant ElementAt(const Variant& value, std::int32_t row, std::int32_t column, FormatKind kind) {
    Variant element = ElementFor(value, row - area_.row + 1, column - area_.column + 1);
    const auto* text = element.TryGet<std::string>();
    if (text == nullptr || kind == FormatKind::Text) return element;
    const auto boolean = book_.NumberFormats().BooleanOf(*text);
    return boolean ? Variant(*boolean) : element;
  }

  void ReadEntries(const FormattedArea& part, const Variant& value, const Locale& locale) {
    Formats& formats = book_.NumberFormats();
    const FormatKind kind = formats.KindOf(part.key);
    const double firstDay = book_.FirstDay();
    for (std::int32_t row = part.area.row; row <= part.area.LastRow(); ++row) {
      for (std::int32_t column = part.area.column; column <= part.area.LastColumn(); ++column) {
        Placed& placed = At(row, column);
        placed.entry = EntryOf(ElementAt(value, row, column, kind), kind, locale, firstDay);
        const bool isNumber =
            placed.entry.kind == Kind::Number || placed.entry.kind == Kind::Formula;
        // The office marks a cell that has shown a boolean; the next number would show as one.
        const bool endsBoolean = kind == FormatKind::Boolean && isNumber;
        const bool bringsFormat = part.key == 0 && !placed.entry.format.empty();
        if (endsBoolean || bringsFormat) placed.newFormat = formats.KeyOf(placed.entry.format);
      }
    }
  }

  void PutAll() {
    Sequence<Sequence<Any>> rows(area_.rows);
    bool hasOthers = false;
    for (std::int32_t row = 0; row < area_.rows; ++row) {
      Sequence<Any> cells(area_.columns);
      for (std::int32_t column = 0; column < area_.columns; ++column) {
        const CellEntry& entry = At(area_.row + row, area_.column + column).entry;
        cells.getArray()[column] = entry.kind == Kind::Number ? Any(entry.number)
                                   : entry.kind == Kind::Text ? Any(ToUno(entry.text))
                                                              : Any(OUString());
        hasOthers = hasOthers || IsOther(entry);
      }
      rows.getArray()[row] = cells;
    }
    As<css::sheet::XCellRangeData>(sheet_.Block(area_))->setDataArray(rows);
    if (!hasOthers) return;
    for (std::int32_t row = area_.row; row <= area_.LastRow(); ++row) {
      for (std::int32_t column = area_.column; column <= area_.LastColumn(); ++column) {
        if (IsOther(At(row, column).entry)) PutOne(row, column, At(row, column));
      }
    }
  }

  static bool IsOther(const CellEntry& entry) {
    return entry.kind == Kind::Formula || entry.kind == Kind::Constant;
  }

  void PutOne(std::int32_t row, std::int32_t column, const Placed& placed) {
    const Cell cell = sheet_.Cell(row, column);
    switch (placed.entry.kind) {
      case Kind::Nothing:
        cell->setFormula(OUString());
        break;
      case Kind::Number:
        cell->setValue(placed.entry.number);
        break;
      case Kind::Text:  // the apostrophe keeps the office from reading a number into it
        cell->setFormula(ToUno("'" + placed.entry.text));
        break;
      case Kind::Constant:
        cell->setFormula(ToUno(placed.entry.text));
        break;
      case Kind::Formula:
        PutFormula(cell, row, column, placed.entry.text);
        break;
    }
  }

  void PutFormula(const Cell& cell, std::int32_t row, std::int32_t column,
                  const std::string& formula) {
    const Tokens tokens = book_.FormulaTexts().Read(formula, {sheet_.Index(), column - 1, row - 1});
    const OUString before = cell->getFormula();
    As<css::sheet::XFormulaTokens>(cell)->setTokens(tokens);
    if (!IsSyntaxError(cell->getError())) return;
    cell->setFormula(before);
    Fail("=" + formula + " can't be entered into " + Place(sheet_, {row, column}) +
         ": it is no complete formula");
  }

  /// The office gives a text that looks like a number the text format, which would make texts of
  /// the numbers that are entered later. True when formats were put back.
  bool KeepFormats() {
    const bool mayHaveChanged =
        std::any_of(entries_.begin(), entries_.end(), [](const Placed& placed) {
          return placed.entry.kind == Kind::Text &&
                 placed.entry.text.find_first_of("0123456789") != std::string::npos;
        });
    if (!mayHaveChanged) return false;
    for (const FormattedArea& part : formats_) {
      const auto block = sheet_.Block(part.area);
      const auto now = FormatsOf(sheet_, part.area);
      if (now.size() != 1 || now.front().key != part.key) PutFormatKey(block, part.key);
    }
    return true;
  }

  /// Column by column, cells below one another that take the same format at once.
  void PutNewFormats() {
    for (std::int32_t column = area_.column; column <= area_.LastColumn(); ++column) {
      std::int32_t row = area_.row;
      while (row <= area_.LastRow()) {
        const std::int32_t key = At(row, column).newFormat;
        const std::int32_t start = row;
        while (row <= area_.LastRow() && At(row, column).newFormat == key) ++row;
        if (key != kNoFormat) PutFormatKey(sheet_.Block({start, column, row - start, 1}), key);
      }
    }
  }

  Sheet& sheet_;
  Book& book_;
  Area area_;
  std::vector<FormattedArea> formats_;
  std::vector<Placed> entries_;
};

}  // namespace

void RequireWritable(Sheet& sheet, const Area& area) {
  if (sheet.OfBook().IsReadOnly()) {
    Fail(Place(sheet, area) + " can't be changed: the workbook was opened for reading only");
  }
  if (sheet.IsProtected() && IsAnyLocked(sheet.Block(area))) {
    Fail(Place(sheet, area) + " can't be changed: the sheet is protected and the cells are locked");
  }
}

void WriteValue(Sheet& sheet, const Area& area, const Variant& value, const Locale& locale) {
  RequireMemoryFor(area);
  RequireWritable(sheet, area);
  Writing(sheet, area).Enter(value, locale);
}

void ClearCells(Sheet& sheet, const Area& area) {
  namespace flags = css::sheet::CellFlags;
  RequireWritable(sheet, area);
  As<css::sheet::XSheetOperation>(sheet.Block(area))
      ->clearContents(flags::VALUE | flags::DATETIME | flags::STRING | flags::FORMULA);
}

}  // namespace rangewerks::hosts::libreoffice
