#include "hosts/workbook/command_bars.h"

#include <algorithm>

#include "automation/text.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
// --- all bars ------------------------------------------------------------------------------------

CommandBars::CommandBars(SessionPointer session) : ModelObject(std::move(session)) {}

const MemberTable& CommandBars::Members() const {
  static const MemberTable table =
      MemberTable::For<CommandBars>("CommandBars")
          .Get(0, "Item", &CommandBars::GetItem, {"Index"}, "The bar of a name or position.")
          .Get(1, "Count", &CommandBars::GetCount, "Number of bars.");
  return table;
}

Variant CommandBars::GetItem(const Variant& index) const {
  const auto& bars = Shared()->menus.bars;
  if (const auto* name = index.TryGet<std::string>()) {
    const auto found = std::ranges::find_if(
        bars, [&](const MenuBarPointer& bar) { return automation::EqualText(bar->name, *name); });
    if (found == bars.end()) RefuseElement("There is no command bar \"" + *name + "\"");
    return std::make_shared<CommandBar>(Shared(), *found);
  }
  const std::int32_t position = LongArgument(index);
  if (position < 1 || static_cast<std::size_t>(position) > bars.size()) {
    RefuseElement("There is no command bar number " + std::to_string(position) + " among " +
                  std::to_string(bars.size()));
  }
  return std::make_shared<CommandBar>(Shared(), bars[static_cast<std::size_t>(position) - 1]);
}

Variant CommandBars::GetCount() const {
  return static_cast<std::int32_t>(Shared()->menus.bars.size());
}

std::unique_ptr<Enumerator> CommandBars::Walk() {
  std::vector<Variant> bars;
  for (const MenuBarPointer& bar : Shared()->menus.bars) {
    bars.emplace_back(std::make_shared<CommandBar>(Shared(), bar));
  }
  return std::make_unique<automation::SnapshotEnumerator>(std::move(bars));
}

// --- one of them ---------------------------------------------------------------------------------

CommandBar::CommandBar(SessionPointer session, MenuBarPointer bar)
    : ModelObject(std::move(session)), bar_(std::move(bar)) {}

const MemberTable& CommandBar::Members() const {
  static const MemberTable table =
      MemberTable::For<CommandBar>("CommandBar")
          .Get(1, "Name", &CommandBar::GetName, "The bar's name, which other bars can have too.")
          .Get(2, "Controls", &CommandBar::GetControls, {Optional("Index")},
               "All controls, or one of them.");
  return table;
}

Variant CommandBar::GetName() const { return bar_->name; }

Variant CommandBar::GetControls(const Variant& index) const {
  const auto controls = std::make_shared<CommandBarControls>(Shared(), bar_);
  return index.IsMissing() ? Variant(controls) : controls->GetItem(index);
}

}  // namespace rangewerks::hosts::workbook
