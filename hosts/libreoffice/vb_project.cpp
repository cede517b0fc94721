#include "hosts/libreoffice/vb_project.h"

#include "hosts/libreoffice/code_module.h"

namespace rangewerks::hosts::libreoffice {

Module RequiredModule(const MacroProject& project, const std::string& name) {
  auto module = project.Find(name);
  if (!module) Fail("Module \"" + name + "\" has been removed or renamed");
  return std::move(*module);
}

// --- the project ---------------------------------------------------------------------------------

const MemberTable& VBProject::Members() const {
  static const MemberTable table = MemberTable::Extending<VBProject>(objects::VBProject::Members())
                                       .Get(0, "Name", &VBProject::GetName, "The project's name.");
  return table;
}

Variant VBProject::GetName() const { return Project().Name(); }

std::shared_ptr<objects::Collection> VBProject::Components() const {
  return std::make_shared<VBComponents>(Office(), InBook());
}

// --- its modules ---------------------------------------------------------------------------------

std::shared_ptr<objects::VBComponent> VBComponents::Face(const Module& module) const {
  return std::make_shared<VBComponent>(Office(), InBook(), module.name);
}

std::shared_ptr<automation::Dispatch> VBComponents::Find(const std::string& name) const {
  const auto module = Project().Find(name);
  return module ? Face(*module) : nullptr;
}

objects::Slot VBComponents::At(std::int32_t position) const {
  return objects::SlotIn(Project().Modules(), position,
                         [this](const Module& module) { return Face(module); });
}

Variant VBComponents::GetCount() const {
  return static_cast<std::int32_t>(Project().Modules().size());
}

Variant VBComponents::GetParent() const { return std::make_shared<VBProject>(Office(), InBook()); }

Variant VBComponents::AddModule(bool isClass) {
  return Face(Project().Add(isClass ? ModuleKind::Class : ModuleKind::Standard));
}

bool VBComponents::TryRemove(const objects::VBComponent& component) {
  const auto* const given = dynamic_cast<const VBComponent*>(&component);
  if (given == nullptr || !given->IsOf(InBook())) return false;
  MacroProject project = Project();
  project.Remove(RequiredModule(project, given->Name()));
  return true;
}

std::unique_ptr<Enumerator> VBComponents::Walk() {
  return objects::WalkThrough(Project().Modules(),
                              [this](const Module& module) { return Face(module); });
}

// --- one of them ---------------------------------------------------------------------------------

Variant VBComponent::GetName() const { return RequiredModule(Project(), name_).name; }

void VBComponent::LetName(const std::string& name) {
  MacroProject project = Project();
  project.Rename(RequiredModule(project, name_), name);
  name_ = name;
}

Variant VBComponent::GetType() const {
  return static_cast<std::int32_t>(RequiredModule(Project(), name_).kind);
}

Variant VBComponent::GetCodeModule() const {
  return std::make_shared<CodeModule>(Office(), InBook(), RequiredModule(Project(), name_).name);
}

}  // namespace rangewerks::hosts::libreoffice
