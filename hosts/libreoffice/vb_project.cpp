#include "hosts/libreoffice/vb_project.h"

#include "hosts/libreoffice/code_module.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::hosts::libreoffice {

Module RequiredModule(const MacroProject& project, const std::string& name) {
  auto module = project.Find(name);
  if (!module) Fail("Module \"" + name + "\" has been removed or renamed");
  return std::move(*module);
}

// --- the project ---------------------------------------------------------------------------------

const MemberTable& VBProject::Members() const {
  static const MemberTable table =
      MemberTable::For<VBProject>("VBProject")
          .Get(0, "Name", &VBProject::GetName, "The project's name.")
          .Get(1, "VBComponents", &VBProject::GetComponents, {Optional("Index")},
               "All code modules, or one of them.");
  return table;
}

Variant VBProject::GetName() const { return Project().Name(); }
Variant VBProject::GetComponents(const Variant& index) const {
  return Element<VBComponents>(index, Office(), InBook());
}

// --- its modules ---------------------------------------------------------------------------------

const MemberTable& VBComponents::Members() const {
  static const MemberTable table =
      MemberTable::For<VBComponents>("VBComponents")
          .Get(0, "Item", &VBComponents::GetItem, {"Index"}, "The module of a name or position.")
          .Get(1, "Count", &VBComponents::GetCount, "Number of modules.")
          .Method(2, "Add", &VBComponents::Add, {"ComponentType"},
                  "A new module: 1 a standard one, 2 a class.")
          .Method(3, "Remove", &VBComponents::Remove, {"VBComponent"}, "Removes a module.")
          .Get(4, "Parent", &VBComponents::GetParent, "The project.");
  return table;
}

Variant VBComponents::Face(const Module& module) const {
  return std::make_shared<VBComponent>(Office(), InBook(), module.name);
}

Variant VBComponents::GetItem(const Variant& index) const {
  if (const auto* name = index.TryGet<std::string>()) {
    const auto module = Project().Find(*name);
    if (!module) {
      FailElement("Workbook \"" + InBook()->Name() + "\" has no module \"" + *name + "\"");
    }
    return Face(*module);
  }
  const std::int32_t position = LongArgument(index);
  const std::vector<Module> modules = Project().Modules();
  if (position < 1 || static_cast<std::size_t>(position) > modules.size()) {
    FailElement("Workbook \"" + InBook()->Name() + "\" has no module number " +
                std::to_string(position) + " among its " + std::to_string(modules.size()));
  }
  return Face(modules[static_cast<std::size_t>(position) - 1]);
}

Variant VBComponents::GetCount() const {
  return static_cast<std::int32_t>(Project().Modules().size());
}

Variant VBComponents::GetParent() const { return std::make_shared<VBProject>(Office(), InBook()); }

Variant VBComponents::Add(std::int32_t type) {
  const auto kind = static_cast<ModuleKind>(type);
  if (kind != ModuleKind::Standard && kind != ModuleKind::Class) {
    Fail("A module that is added is of the type 1 (standard) or 2 (class), not " +
         std::to_string(type));
  }
  return Face(Project().Add(kind));
}

void VBComponents::Remove(const Variant& component) {
  const auto given = component.IsObject() ? component.AsObject().As<VBComponent>() : nullptr;
  if (!given || !given->IsOf(InBook())) {
    Fail("Only a module of workbook \"" + InBook()->Name() + "\" can be removed from it, not a " +
         component.TypeName() + (given ? " that isn't one of its" : ""));
  }
  MacroProject project = Project();
  project.Remove(RequiredModule(project, given->Name()));
}

std::unique_ptr<Enumerator> VBComponents::Walk() {
  std::vector<Variant> components;
  for (const Module& module : Project().Modules()) components.push_back(Face(module));
  return std::make_unique<automation::SnapshotEnumerator>(std::move(components));
}

// --- one of them ---------------------------------------------------------------------------------

const MemberTable& VBComponent::Members() const {
  static const MemberTable table =
      MemberTable::For<VBComponent>("VBComponent")
          .Get(1, "Name", &VBComponent::GetName, "The module's name.")
          .Let(1, "Name", &VBComponent::LetName, "Renames a module that was added.")
          .Get(2, "Type", &VBComponent::GetType,
               "1 a standard module, 2 a class, 3 a form, 100 of the workbook or a sheet.")
          .Get(3, "CodeModule", &VBComponent::GetCodeModule, "The code.");
  return table;
}

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
