#include "hosts/workbook/code_module.h"

namespace rangewerks::hosts::workbook {
namespace {

/// Carries `step` out on the code; what it raises is told with the module and its size.
template <class Step>
void InModule(MacroModule& module, const Step& step) {
  try {
    step(module.code);
  } catch (const automation::Error& error) {
    throw automation::Error(error.Number(), kSource,
                            "Module \"" + module.name + "\", which has " +
                                std::to_string(module.code.CountOfLines()) +
                                " lines: " + error.Description());
  }
}

}  // namespace

void CodeModule::RequireAlive() const {
  if (module_->removed) Refuse("Module \"" + module_->name + "\" has been removed");
}

void CodeModule::Look(const std::function<void(const CodeText&)>& look) const {
  InModule(*module_, look);
}

void CodeModule::Change(const std::function<void(CodeText&)>& change) {
  InModule(*module_, change);
}

}  // namespace rangewerks::hosts::workbook
