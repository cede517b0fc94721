#include <algorithm>

#include "hosts/workbook/command_bars.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::Argument;

const automation::Member kClick{"Click"};

constexpr std::int32_t kButton = 1;

}  // namespace

// --- all of a bar --------------------------------------------------------------------------------

CommandBarControls::CommandBarControls(SessionPointer session, MenuBarPointer bar)
    : ModelObject(std::move(session)), bar_(std::move(bar)) {}

const MemberTable& CommandBarControls::Members() const {
  static const MemberTable table =
      MemberTable::For<CommandBarControls>("CommandBarControls")
          .Get(0, "Item", &CommandBarControls::GetItem, {"Index"},
               "The control of a caption or at a position.")
          .Get(1, "Count", &CommandBarControls::GetCount, "Number of controls.")
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
  std::vector<Variant> controls;
  for (const MenuEntryPointer& entry : bar_->entries) {
    controls.emplace_back(std::make_shared<CommandBarControl>(Shared(), bar_, entry));
  }
  return std::make_unique<automation::SnapshotEnumerator>(std::move(controls));
}

// --- one of them ---------------------------------------------------------------------------------

CommandBarControl::CommandBarControl(SessionPointer session, MenuBarPointer bar,
                                     MenuEntryPointer entry)
    : ModelObject(std::move(session)), bar_(std::move(bar)), entry_(std::move(entry)) {}

const MemberTable& CommandBarControl::Members() const {
  using C = CommandBarControl;
  static const MemberTable table =
      MemberTable::For<C>("CommandBarControl")
          .Get(1, "Caption", &C::GetCaption, "The text, with \"&\" ahead of its access key.")
          .Let(1, "Caption", &C::LetCaption, "The text, with \"&\" ahead of its access key.")
          .Get(2, "Tag", &C::GetTag, "A text by which code tells the control.")
          .Let(2, "Tag", &C::LetTag, "A text by which code tells the control.")
          .Get(3, "OnAction", &C::GetOnAction, "Name of a macro; no macros are run here.")
          .Let(3, "OnAction", &C::LetOnAction, "Name of a macro; no macros are run here.")
          .Get(4, "Index", &C::GetIndex, "Position among the controls of its bar.")
          .Method(5, "Execute", &C::Execute, {}, "Does what a person does who chooses the control.")
          .Method(6, "Delete", &C::Delete, {Optional("Temporary")}, "Removes the control.");
  return table;
}

automation::Connection CommandBarControl::Connect(automation::EventHandler handler) {
  RequireAlive();
  return entry_->events.Connect(std::move(handler));
}

void CommandBarControl::RequireAlive() const {
  if (entry_->deleted) Refuse("The menu entry \"" + entry_->caption + "\" has been deleted");
}

Variant CommandBarControl::GetCaption() const { return entry_->caption; }
void CommandBarControl::LetCaption(const std::string& value) { entry_->caption = value; }
Variant CommandBarControl::GetTag() const { return entry_->tag; }
void CommandBarControl::LetTag(const std::string& value) { entry_->tag = value; }
Variant CommandBarControl::GetOnAction() const { return entry_->onAction; }
void CommandBarControl::LetOnAction(const std::string& value) { entry_->onAction = value; }

Variant CommandBarControl::GetIndex() const {
  const auto place = std::ranges::find(bar_->entries, entry_);
  return static_cast<std::int32_t>(place - bar_->entries.begin()) + 1;
}

void CommandBarControl::Execute() {
  const MenuEntryPointer entry = entry_;  // a handler may delete it
  const Argument control(Self());
  entry->events.Raise(kClick, {&control, 1});
}

void CommandBarControl::Delete(const Variant& /*temporary*/) { RemoveEntry(*bar_, entry_); }

}  // namespace rangewerks::hosts::workbook
