#include "hosts/workbook/command_bars.h"

#include <algorithm>

#include "automation/text.h"

namespace rangewerks::hosts::workbook {
namespace {

constexpr std::int32_t kButton = 1;

}  // namespace

// --- the bars ------------------------------------------------------------------------------------

std::shared_ptr<automation::Dispatch> CommandBars::Find(const std::string& name) const {
  const auto& bars = Shared()->menus.bars;
  const auto found = std::ranges::find_if(
      bars, [&](const MenuBarPointer& bar) { return automation::EqualText(bar->name, name); });
  return found == bars.end() ? nullptr : std::make_shared<CommandBar>(Shared(), *found);
}

objects::Slot CommandBars::At(std::int32_t position) const {
  return objects::SlotIn(Shared()->menus.bars, position, [this](const MenuBarPointer& bar) {
    return std::make_shared<CommandBar>(Shared(), bar);
  });
}

Variant CommandBars::GetCount() const {
  return static_cast<std::int32_t>(Shared()->menus.bars.size());
}

std::unique_ptr<Enumerator> CommandBars::Walk() {
  return objects::WalkThrough(Shared()->menus.bars, [this](const MenuBarPointer& bar) {
    return std::make_shared<CommandBar>(Shared(), bar);
  });
}

std::shared_ptr<objects::Collection> CommandBar::Controls() const {
  return std::make_shared<CommandBarControls>(Shared(), bar_);
}

// --- the controls of one -------------------------------------------------------------------------

const MemberTable& CommandBarControls::Members() const {
  static const MemberTable table =
      MemberTable::Extending<CommandBarControls>(objects::CommandBarControls::Members())
          .Method(2, "Add", &CommandBarControls::Add,
                  {Optional("Type"), Optional("Id"), Optional("Parameter"), Optional("Before"),
                   Optional("Temporary")},
                  "A new button without a caption, at the end or ahead of another control.");
  return table;
}

Variant CommandBarControls::GetItem(const Variant& index) const {
  return std::make_shared<CommandBarControl>(Shared(), bar_,
                                             bar_->entries[PlaceOfEntry(*bar_, index)]);
}

Variant CommandBarControls::GetCount() const {
  return static_cast<std::int32_t>(bar_->entries.size());
}

Variant CommandBarControls::Add(const Variant& type, const Variant& id,
                                const Variant& /*parameter*/, const Variant& before,
                                const Variant& /*temporary*/) {
  const bool isButton = type.IsMissing() || LongArgument(type) == kButton;
  if (!isButton || !id.IsMissing()) {
    Refuse("Only buttons (type 1) without an Id can be added to a menu");
  }
  return std::make_shared<CommandBarControl>(Shared(), bar_, AddEntry(*bar_, "", before));
}

std::unique_ptr<Enumerator> CommandBarControls::Walk() {
  return objects::WalkThrough(bar_->entries, [this](const MenuEntryPointer& entry) {
    return std::make_shared<CommandBarControl>(Shared(), bar_, entry);
  });
}

const MemberTable& CommandBarControl::Members() const {
  using C = CommandBarControl;
  static const MemberTable table =
      MemberTable::Extending<C>(objects::CommandBarControl::Members())
          .Get(4, "Index", &C::GetIndex, "Position among the controls of its bar.")
          .Method(5, "Execute", &C::RaiseClick, {},
                  "Does what a person does who chooses the control.");
  return table;
}

Variant CommandBarControl::GetIndex() const {
  const auto place = std::ranges::find(bar_->entries, entry_);
  return static_cast<std::int32_t>(place - bar_->entries.begin()) + 1;
}

}  // namespace rangewerks::hosts::workbook
