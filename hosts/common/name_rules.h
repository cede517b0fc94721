// Which names a workbook, a sheet and a macro module can have.
#pragma once

#include <string>
#include <string_view>

#include "hosts/common/area.h"

namespace rangewerks::hosts {

/// Why a defined name can't be called that, as the end of a sentence such as "it holds a blank";
/// empty when it can. `name` is without a sheet in front.
std::string FaultOfName(std::string_view name);

/// The same for a sheet, apart from the other sheets' names.
std::string FaultOfSheetName(std::string_view name);

/// The same for a macro module, apart from the other modules' names.
std::string FaultOfModuleName(std::string_view name);

/// The sheet's name as references show it: in apostrophes, its own apostrophes doubled, when it
/// isn't made of letters, digits, "_" and "." alone, begins with a digit or looks like a cell.
std::string QuotedSheetName(std::string_view name);

/// Cells with their sheet, as references show them: "'Data Sheet'!$C$3".
std::string PlaceOf(std::string_view sheet, const Area& area);

/// A reference such as "'Data Sheet'!$A$1" taken apart at its "!". Without one the sheet is empty.
struct SheetAndRest {
  std::string sheet;
  std::string rest;
  bool hasSheet = false;
};
SheetAndRest SplitSheet(std::string_view reference);

/// The name without the one trailing blank that it may have been given.
std::string_view WithoutTrailingBlank(std::string_view name);

}  // namespace rangewerks::hosts
