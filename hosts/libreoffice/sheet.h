// One sheet of an open workbook, seen through the office's interfaces.
#pragma once

#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <memory>
#include <string>

#include "automation/dispatch.h"
#include "hosts/common/area.h"
#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {

/// The office counts from 0.
Area AreaOf(const css::table::CellRangeAddress& address);

class Book;

/// Every question to the office is a call over the bridge, so interfaces are asked for when first
/// needed and kept; facts that a user can change are never kept.
class Sheet {
 public:
  Sheet(Book* book, const Reference<css::sheet::XSpreadsheet>& cells);

  Book& OfBook() const noexcept { return *book_; }
  const Reference<css::sheet::XSpreadsheet>& Cells() const noexcept { return cells_; }
  Reference<css::table::XCell> Cell(std::int32_t row, std::int32_t column) const;
  Reference<css::table::XCellRange> Block(const Area& area) const;

  std::string Name();
  /// What Name() gave last: where to look first, to be checked against Name().
  const std::string& LastName() const noexcept { return lastName_; }
  /// Takes what it is given: the rules of sheet names are the caller's business.
  void Rename(const std::string& name);
  /// Position among the sheets, from 0.
  std::int16_t Index() const;
  /// The names of this sheet alone.
  const Reference<css::sheet::XNamedRanges>& Names();
  bool IsProtected();

  /// The Worksheet that stands for this sheet, while anybody holds it.
  std::weak_ptr<automation::Dispatch> face;
  /// The office would answer for another sheet in the place of a deleted one.
  bool deleted = false;

 private:
  Book* book_;
  std::string lastName_;
  Reference<css::sheet::XSpreadsheet> cells_;
  Reference<css::container::XNamed> named_;
  Reference<css::sheet::XNamedRanges> names_;
  Reference<css::util::XProtectable> protection_;
};

using SheetPointer = std::shared_ptr<Sheet>;

}  // namespace rangewerks::hosts::libreoffice
