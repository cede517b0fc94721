// The text of a macro module as the office keeps it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "hosts/common/code_text.h"

namespace rangewerks::hosts::libreoffice {

/// By the numbers of the object model.
enum class ModuleKind : std::int32_t {
  Standard = 1,
  Class = 2,
  Form = 3,
  Document = 100,  ///< of the workbook or of a sheet, with which it comes and goes
};

struct Module {
  std::string name;
  ModuleKind kind;
};

/// A module's text with what the office puts in front of its lines, to know them for those of an
/// Excel file. It is never empty: a module without any text would make its library unreadable in an
/// ods file. Every line has an end, as those have that the office reads from a file.
std::string SourceOf(ModuleKind kind, const CodeText& code);

/// The text behind that front.
std::string_view WithoutHeader(std::string_view source);

/// The lines of a module.
CodeText CodeIn(std::string_view source);

}  // namespace rangewerks::hosts::libreoffice
