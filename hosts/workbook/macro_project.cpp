#include "hosts/workbook/macro_project.h"

#include <algorithm>

#include "automation/text.h"

namespace rangewerks::hosts::workbook {

MacroProject::MacroProject() : ofWorkbook(std::make_shared<MacroModule>()) {
  ofWorkbook->name = "ThisWorkbook";
  ofWorkbook->kind = ModuleKind::Document;
}

std::string FreeModuleName(const std::vector<MacroModulePointer>& modules,
                           const std::string& series) {
  for (int number = 1;; ++number) {
    std::string name = series + std::to_string(number);
    const auto hasIt = [&](const MacroModulePointer& module) {
      return automation::EqualText(module->name, name);
    };
    if (std::ranges::none_of(modules, hasIt)) return name;
  }
}

}  // namespace rangewerks::hosts::workbook
