#include "hosts/libreoffice/cell_properties.h"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>

#include "hosts/libreoffice/cell_writing.h"

namespace rangewerks::hosts::libreoffice {

CellProperties PropertiesOf(const Sheet& sheet, const Area& area) {
  return As<css::beans::XPropertySet>(sheet.Block(area));
}

PropertyState StateOf(const CellProperties& cells, const char* property) {
  return As<css::beans::XPropertyState>(cells)->getPropertyState(
      OUString::createFromAscii(property));
}

void PutProperty(Sheet& sheet, const Area& area, const char* property, const Any& value) {
  RequireWritable(sheet, area);
  PropertiesOf(sheet, area)->setPropertyValue(OUString::createFromAscii(property), value);
}

std::vector<CellProperties> PartsByProperty(const Sheet& sheet, const Area& area,
                                            const char* property) {
  const CellProperties all = PropertiesOf(sheet, area);
  if (StateOf(all, property) != css::beans::PropertyState_AMBIGUOUS_VALUE) return {all};
  const auto groups =
      As<css::sheet::XUniqueCellFormatRangesSupplier>(all)->getUniqueCellFormatRanges();
  std::vector<CellProperties> parts;
  const std::int32_t count = groups->getCount();
  parts.reserve(static_cast<std::size_t>(count));
  for (std::int32_t i = 0; i < count; ++i) {
    parts.push_back(As<css::beans::XPropertySet>(
        Extract<Reference<css::uno::XInterface>>(groups->getByIndex(i))));
  }
  return parts;
}

}  // namespace rangewerks::hosts::libreoffice
