// Properties that the office keeps for each cell, read and written for whole blocks.
#pragma once

#include <com/sun/star/beans/XPropertyState.hpp>
#include <optional>
#include <vector>

#include "hosts/libreoffice/sheet.h"

namespace rangewerks::hosts::libreoffice {

/// What a property of cells is: the office's default, a value of their own, or different values.
using css::beans::PropertyState;

/// A cell, a block or several blocks as the office gives them, with their properties.
using CellProperties = Reference<css::beans::XPropertySet>;

CellProperties PropertiesOf(const Sheet& sheet, const Area& area);
PropertyState StateOf(const CellProperties& cells, const char* property);

/// The value that all cells of the area have; none when they differ.
template <class T>
std::optional<T> CommonProperty(const Sheet& sheet, const Area& area, const char* property) {
  const CellProperties cells = PropertiesOf(sheet, area);
  const bool isCommon =
      area.IsOneCell() || StateOf(cells, property) != css::beans::PropertyState_AMBIGUOUS_VALUE;
  if (!isCommon) return std::nullopt;
  return Property<T>(cells, property);
}

/// Gives all cells the value. Raises 1004 when they can't be changed.
void PutProperty(Sheet& sheet, const Area& area, const char* property, const Any& value);

/// The area in parts of which each has one value of every property: the whole area where the
/// property is the same in all cells.
std::vector<CellProperties> PartsByProperty(const Sheet& sheet, const Area& area,
                                            const char* property);

}  // namespace rangewerks::hosts::libreoffice
