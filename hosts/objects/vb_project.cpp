#include "hosts/objects/vb_project.h"

namespace rangewerks::hosts::objects {
namespace {

constexpr std::int32_t kStandardModule = 1;
constexpr std::int32_t kClassModule = 2;

}  // namespace

const MemberTable& VBProject::Members() const {
  static const MemberTable table =
      MemberTable::For<VBProject>("VBProject")
          .Get(1, "VBComponents", &VBProject::GetComponents, {Optional("Index")},
               "All code modules, or one of them.");
  return table;
}

Variant VBProject::GetComponents(const Variant& index) const {
  return AllOrOne(Components(), index);
}

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

// --- all modules ---------------------------------------------------------------------------------

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

Variant VBComponents::Add(std::int32_t type) {
  if (type != kStandardModule && type != kClassModule) {
    Refuse("A module that is added is of the type 1 (standard) or 2 (class), not " +
           std::to_string(type));
  }
  return AddModule(type == kClassModule);
}

void VBComponents::Remove(const Variant& component) {
  const auto given = component.IsObject() ? component.AsObject().As<VBComponent>() : nullptr;
  if (!given || !TryRemove(*given)) {
    Refuse("Only a module of workbook \"" + BookName() + "\" can be removed from it, not a " +
           component.TypeName() + (given ? " that isn't one of its" : ""));
  }
}

}  // namespace rangewerks::hosts::objects
