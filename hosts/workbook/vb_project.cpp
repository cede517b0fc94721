#include "hosts/workbook/vb_project.h"

#include <algorithm>

#include "automation/text.h"
#include "hosts/common/name_rules.h"
#include "hosts/workbook/code_module.h"
#include "hosts/workbook/failure.h"

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

VBProject::VBProject(SessionPointer session, Book* book)
    : ModelObject(std::move(session)), book_(book) {}

const MemberTable& VBProject::Members() const {
  static const MemberTable table =
      MemberTable::For<VBProject>("VBProject")
          .Get(1, "VBComponents", &VBProject::GetComponents, {Optional("Index")},
               "All code modules, or one of them.");
  return table;
}

Variant VBProject::GetComponents(const Variant& index) const {
  const auto components = std::make_shared<VBComponents>(Shared(), book_);
  return index.IsMissing() ? Variant(components) : components->GetItem(index);
}

// --- its modules ---------------------------------------------------------------------------------

VBComponents::VBComponents(SessionPointer session, Book* book)
    : ModelObject(std::move(session)), book_(book) {}

const MemberTable& VBComponents::Members() const {
  static const MemberTable table =
      MemberTable::For<VBComponents>("VBComponents")
          .Get(0, "Item", &VBComponents::GetItem, {"Index"}, "The module of a name or position.")
          .Get(1, "Count", &VBComponents::GetCount, "Number of modules.")
          .Method(2, "Add", &VBComponents::Add, {"ComponentType"},
                  "A new module: 1 a standard one, 2 a class.")
          .Method(3, "Remove", &VBComponents::Remove, {"VBComponent"}, "Removes a module.");
  return table;
}

Variant VBComponents::Face(const MacroModulePointer& module) const {
  return std::make_shared<VBComponent>(Shared(), book_, module);
}

Variant VBComponents::GetItem(const Variant& index) const {
  if (const auto* name = index.TryGet<std::string>()) {
    const MacroModulePointer module = FindModule(*book_, *name);
    if (!module) RefuseElement("Workbook \"" + book_->name + "\" has no module \"" + *name + "\"");
    return Face(module);
  }
  const std::int32_t position = LongArgument(index);
  const auto modules = book_->Modules();
  if (position < 1 || static_cast<std::size_t>(position) > modules.size()) {
    RefuseElement("Workbook \"" + book_->name + "\" has no module number " +
                  std::to_string(position) + " among its " + std::to_string(modules.size()));
  }
  return Face(modules[static_cast<std::size_t>(position) - 1]);
}

Variant VBComponents::GetCount() const {
  return static_cast<std::int32_t>(book_->Modules().size());
}

Variant VBComponents::Add(std::int32_t type) {
  const auto kind = static_cast<ModuleKind>(type);
  if (kind != ModuleKind::Standard && kind != ModuleKind::Class) {
    Refuse("A module that is added is of the type 1 (standard) or 2 (class), not " +
           std::to_string(type));
  }
  auto module = std::make_shared<MacroModule>();
  module->kind = kind;
  module->name = FreeModuleName(book_->Modules(), kind == ModuleKind::Class ? "Class" : "Module");
  book_->macros.added.push_back(module);
  return Face(module);
}

void VBComponents::Remove(const Variant& component) {
  const auto given = component.IsObject() ? component.AsObject().As<VBComponent>() : nullptr;
  if (!given || given->OfBook() != book_ || given->Data()->removed) {
    Refuse("Only a module of workbook \"" + book_->name + "\" can be removed from it, not a " +
           component.TypeName() + (given ? " that isn't one of its" : ""));
  }
  const MacroModulePointer module = given->Data();
  if (module->kind == ModuleKind::Document) {
    Refuse("Module \"" + module->name + "\" can't be removed: it belongs to the workbook itself " +
           "or to one of its sheets");
  }
  std::erase(book_->macros.added, module);
  module->removed = true;
}

std::unique_ptr<Enumerator> VBComponents::Walk() {
  std::vector<Variant> components;
  for (const MacroModulePointer& module : book_->Modules()) components.push_back(Face(module));
  return std::make_unique<automation::SnapshotEnumerator>(std::move(components));
}

// --- one of them ---------------------------------------------------------------------------------

VBComponent::VBComponent(SessionPointer session, Book* book, MacroModulePointer module)
    : ModelObject(std::move(session)), book_(book), module_(std::move(module)) {}

const MemberTable& VBComponent::Members() const {
  static const MemberTable table =
      MemberTable::For<VBComponent>("VBComponent")
          .Get(1, "Name", &VBComponent::GetName, "The module's name.")
          .Let(1, "Name", &VBComponent::LetName, "Renames a module that was added.")
          .Get(2, "Type", &VBComponent::GetType,
               "1 a standard module, 2 a class, 100 of the workbook or a sheet.")
          .Get(3, "CodeModule", &VBComponent::GetCodeModule, "The code.");
  return table;
}

void VBComponent::RequireAlive() const {
  if (module_->removed) Refuse("Module \"" + module_->name + "\" has been removed");
}

Variant VBComponent::GetName() const { return module_->name; }

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

Variant VBComponent::GetType() const { return static_cast<std::int32_t>(module_->kind); }

Variant VBComponent::GetCodeModule() const {
  return std::make_shared<CodeModule>(Shared(), module_);
}

}  // namespace rangewerks::hosts::workbook
