// Values that go into the macro code of a workbook, written so that they can't become other code.
#pragma once

#include <string>
#include <string_view>

namespace rangewerks {

/// A text as a literal of macro code: in double quotes, its own doubled. Raises 0x80040000 for a
/// text that no literal of one line can hold: one with line ends or other control characters, with
/// a character that code editors turn into a double quote or a line end, or with bytes that are no
/// characters.
std::string MacroLiteral(std::string_view sText);

}  // namespace rangewerks
