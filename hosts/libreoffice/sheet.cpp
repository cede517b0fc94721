#include "hosts/libreoffice/sheet.h"

#include <com/sun/star/sheet/XCellRangeAddressable.hpp>

namespace rangewerks::hosts::libreoffice {

Area AreaOf(const css::table::CellRangeAddress& address) {
  return {address.StartRow + 1, address.StartColumn + 1, address.EndRow - address.StartRow + 1,
          address.EndColumn - address.StartColumn + 1};
}

Sheet::Sheet(Book* book, const Reference<css::sheet::XSpreadsheet>& cells)
    : book_(book), cells_(cells) {}

Reference<css::table::XCell> Sheet::Cell(std::int32_t row, std::int32_t column) const {
  return cells_->getCellByPosition(column - 1, row - 1);
}

Reference<css::table::XCellRange> Sheet::Block(const Area& area) const {
  return cells_->getCellRangeByPosition(area.column - 1, area.row - 1, area.LastColumn() - 1,
                                        area.LastRow() - 1);
}

std::string Sheet::Name() {
  if (!named_.is()) named_ = As<css::container::XNamed>(cells_);
  lastName_ = ToUtf8(named_->getName());
  return lastName_;
}

void Sheet::Rename(const std::string& name) {
  if (!named_.is()) named_ = As<css::container::XNamed>(cells_);
  named_->setName(ToUno(name));
}

std::int16_t Sheet::Index() const {
  return As<css::sheet::XCellRangeAddressable>(cells_)->getRangeAddress().Sheet;
}

const Reference<css::sheet::XNamedRanges>& Sheet::Names() {
  if (!names_.is()) {
    names_ = Property<Reference<css::sheet::XNamedRanges>>(As<css::beans::XPropertySet>(cells_),
                                                           "NamedRanges");
  }
  return names_;
}

bool Sheet::IsProtected() {
  if (!protection_.is()) protection_ = As<css::util::XProtectable>(cells_);
  return protection_->isProtected();
}

}  // namespace rangewerks::hosts::libreoffice
