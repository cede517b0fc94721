#include "hosts/libreoffice/code_module.h"

namespace rangewerks::hosts::libreoffice {

void CodeModule::Look(const std::function<void(const CodeText&)>& look) const {
  const MacroProject project = Project();
  look(project.CodeOf(RequiredModule(project, name_)));
}

void CodeModule::Change(const std::function<void(CodeText&)>& change) {
  MacroProject project = Project();
  const Module module = RequiredModule(project, name_);
  CodeText code = project.CodeOf(module);
  change(code);
  project.PutCode(module, code);
}

}  // namespace rangewerks::hosts::libreoffice
