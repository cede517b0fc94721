// What a value becomes when it is entered into a cell.
#pragma once

#include <string>

#include "automation/locale.h"
#include "automation/variant.h"
#include "hosts/libreoffice/formats.h"

namespace rangewerks::hosts::libreoffice {

struct CellEntry {
  enum class Kind {
    Nothing,  ///< the cell becomes empty
    Number,
    Text,
    Formula,  ///< in the object model's notation, without "="
    Constant  ///< a boolean or an error value, as the formula that the office keeps it as
  };
  Kind kind = Kind::Nothing;
  double number = 0;
  std::string text;
  /// The number format that a cell without one takes on; empty for none.
  std::string format;
};

/// Reads a value, as typed if it is a text, for a cell of that format. `firstDay` is the day that
/// the document counts dates from. Raises 1004 for a value that no cell can hold.
CellEntry EntryOf(const automation::Variant& value, FormatKind format,
                  const automation::Locale& locale, double firstDay);

}  // namespace rangewerks::hosts::libreoffice
