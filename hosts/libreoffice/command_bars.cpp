#include "hosts/libreoffice/command_bars.h"

#include "automation/text.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr const char* kBarOfCells = "Cell";

}  // namespace

std::shared_ptr<automation::Dispatch> CommandBars::Find(const std::string& name) const {
  if (!automation::EqualText(name, kBarOfCells)) return nullptr;
  return std::make_shared<CommandBar>(Office());
}

objects::Slot CommandBars::At(std::int32_t position) const {
  if (position != 1) return {nullptr, 1};
  return {std::make_shared<CommandBar>(Office()), 1};
}

std::unique_ptr<Enumerator> CommandBars::Walk() {
  return std::make_unique<automation::SnapshotEnumerator>(
      std::vector<Variant>{std::make_shared<CommandBar>(Office())});
}

Variant CommandBar::GetName() const { return kBarOfCells; }

std::shared_ptr<objects::Collection> CommandBar::Controls() const {
  return std::make_shared<CommandBarControls>(Office());
}

// --- its controls --------------------------------------------------------------------------------

Variant CommandBarControls::GetItem(const Variant& index) const {
  return std::make_shared<CommandBarControl>(Office(), Office()->Menu().EntryAt(index));
}

Variant CommandBarControls::GetCount() const {
  return static_cast<std::int32_t>(Office()->Menu().Entries().size());
}

std::unique_ptr<Enumerator> CommandBarControls::Walk() {
  return objects::WalkThrough(Office()->Menu().Entries(), [this](const MenuEntryPointer& entry) {
    return std::make_shared<CommandBarControl>(Office(), entry);
  });
}

const MemberTable& CommandBarControl::Members() const {
  using C = CommandBarControl;
  static const MemberTable table =
      MemberTable::Extending<C>(objects::CommandBarControl::Members())
          .Get(7, "BuiltIn", &C::GetBuiltIn, "Whether the control is one of the office's.");
  return table;
}

}  // namespace rangewerks::hosts::libreoffice
