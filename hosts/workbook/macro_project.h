// The code modules of one workbook as plain data.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "hosts/common/code_text.h"

namespace rangewerks::hosts::workbook {

/// The numbers of the object model.
enum class ModuleKind : std::int32_t {
  Standard = 1,
  Class = 2,
  Document = 100,  ///< of the workbook or of a sheet, with which it comes and goes
};

struct MacroModule {
  std::string name;
  ModuleKind kind = ModuleKind::Standard;
  CodeText code;
  bool removed = false;  ///< those who still hold it are refused everything
};
using MacroModulePointer = std::shared_ptr<MacroModule>;

/// What the workbook itself has; the module of a sheet belongs to its sheet.
struct MacroProject {
  MacroProject();

  MacroModulePointer ofWorkbook;  ///< "ThisWorkbook"
  std::vector<MacroModulePointer> added;
};

/// "Module1", "Module2" …: the first of a series that none of the modules has.
std::string FreeModuleName(const std::vector<MacroModulePointer>& modules,
                           const std::string& series);

}  // namespace rangewerks::hosts::workbook
