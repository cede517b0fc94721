#include "hosts/workbook/vb_project.h"

#include <algorithm>

#include "automation/text.h"
#include "hosts/common/name_rules.h"
#include "hosts/workbook/code_module.h"

namespace rangewerks::hosts::workbook {
namespace {

MacroModulePointer FindModule(const Book& book, const std::string& name) {
  for (MacroModulePointer& module : book.Modules()) {
    if (automation::EqualText(module->name, name)) return std::move(module);
  }
  return nullptr;
}

}  // namespace

// --- the project ---------------------------------------------------------------------------------

std::shared_ptr<objects::Collection> VBProject::Components() const {
  return std::make_shared<VBComponents>(Shared(), book_);
}

// --- its modules ---------------------------------------------------------------------------------

std::shared_ptr<automation::Dispatch> VBComponents::Find(const std::string& name) const {
  const MacroModulePointer module = FindModule(*book_, name);
  return module ? std::make_shared<VBComponent>(Shared(), book_, module) : nullptr;
}

objects::Slot VBComponents::At(std::int32_t position) const {
  return objects::SlotIn(book_->Modules(), position, [this](const MacroModulePointer& module) {
    return std::make_shared<VBComponent>(Shared(), book_, module);
  });
}

Variant VBComponents::GetCount() const {
  return static_cast<std::int32_t>(book_->Modules().size());
}

Variant VBComponents::GetParent() const { return std::make_shared<VBProject>(Shared(), book_); }

Variant VBComponents::AddModule(bool isClass) {
  auto module = std::make_shared<MacroModule>();
  module->kind = isClass ? ModuleKind::Class : ModuleKind::Standard;
  module->name = FreeModuleName(book_->Modules(), isClass ? "Class" : "Module");
  book_->macros.added.push_back(module);
  return std::make_shared<VBComponent>(Shared(), book_, module);
}

bool VBComponents::TryRemove(const objects::VBComponent& component) {
  const auto* const given = dynamic_cast<const VBComponent*>(&component);
  if (given == nullptr || given->OfBook() != book_ || given->Data()->removed) return false;
  const MacroModulePointer module = given->Data();
  if (module->kind == ModuleKind::Document) {
    Refuse("Module \"" + module->name + "\" can't be removed: it belongs to the workbook itself " +
           "or to one of its sheets");
  }
  std::erase(book_->macros.added, module);
  module->removed = true;
  return true;
}

std::unique_ptr<Enumerator> VBComponents::Walk() {
  return objects::WalkThrough(book_->Modules(), [this](const MacroModulePointer& module) {
    return std::make_shared<VBComponent>(Shared(), book_, module);
  });
}

// --- one of them ---------------------------------------------------------------------------------

void VBComponent::RequireAlive() const {
  if (module_->removed) Refuse("Module \"" + module_->name + "\" has been removed");
}

void VBComponent::LetName(const std::string& name) {
  if (module_->kind == ModuleKind::Document) {
    Refuse("Module \"" + module_->name +
           "\" keeps its name: it belongs to the workbook itself or " + "to one of its sheets");
  }
  if (const std::string fault = FaultOfModuleName(name); !fault.empty()) {
    Refuse("A module can't be called \"" + name + "\": " + fault);
  }
  const MacroModulePointer other = FindModule(*book_, name);
  if (other && other != module_) {
    Refuse("Module \"" + module_->name + "\" can't become \"" + name +
           "\": there is a module of that name");
  }
  module_->name = name;
}

Variant VBComponent::GetCodeModule() const {
  return std::make_shared<CodeModule>(Shared(), module_);
}

}  // namespace rangewerks::hosts::workbook
