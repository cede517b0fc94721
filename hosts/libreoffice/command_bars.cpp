#include "hosts/libreoffice/command_bars.h"

#include "automation/text.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr const char* kBarOfCells = "Cell";

}  // namespace

// --- the bars ------------------------------------------------------------------------------------

const MemberTable& CommandBars::Members() const {
  static const MemberTable table =
      MemberTable::For<CommandBars>("CommandBars")
          .Get(0, "Item", &CommandBars::GetItem, {"Index"}, "The bar of a name or position.")
          .Get(1, "Count", &CommandBars::GetCount, "Number of bars.");
  return table;
}

Variant CommandBars::GetItem(const Variant& index) const {
  const auto* name = index.TryGet<std::string>();
  const bool isThere =
      name == nullptr ? LongArgument(index) == 1 : automation::EqualText(*name, kBarOfCells);
  if (!isThere) {
    FailElement("There is no command bar " + TextArgument(index) + " here, only \"Cell\"");
  }
  return std::make_shared<CommandBar>(Office());
}

Variant CommandBars::GetCount() const { return std::int32_t{1}; }

std::unique_ptr<Enumerator> CommandBars::Walk() {
  return std::make_unique<automation::SnapshotEnumerator>(
      std::vector<Variant>{std::make_shared<CommandBar>(Office())});
}

const MemberTable& CommandBar::Members() const {
  static const MemberTable table = MemberTable::For<CommandBar>("CommandBar")
                                       .Get(1, "Name", &CommandBar::GetName, "The bar's name.")
                                       .Get(2, "Controls", &CommandBar::GetControls,
                                            {Optional("Index")}, "All controls, or one of them.");
  return table;
}

Variant CommandBar::GetName() const { return kBarOfCells; }
Variant CommandBar::GetControls(const Variant& index) const {
  return Element<CommandBarControls>(index, Office());
}

// --- all controls --------------------------------------------------------------------------------

const MemberTable& CommandBarControls::Members() const {
  static const MemberTable table =
      MemberTable::For<CommandBarControls>("CommandBarControls")
          .Get(0, "Item", &CommandBarControls::GetItem, {"Index"},
               "The control of a caption or at a position.")
          .Get(1, "Count", &CommandBarControls::GetCount, "Number of controls.");
  return table;
}

Variant CommandBarControls::GetItem(const Variant& index) const {
  return std::make_shared<CommandBarControl>(Office(), Office()->Menu().EntryAt(index));
}

Variant CommandBarControls::GetCount() const {
  return static_cast<std::int32_t>(Office()->Menu().Entries().size());
}

std::unique_ptr<Enumerator> CommandBarControls::Walk() {
  std::vector<Variant> controls;
  for (const MenuEntryPointer& entry : Office()->Menu().Entries()) {
    controls.emplace_back(std::make_shared<CommandBarControl>(Office(), entry));
  }
  return std::make_unique<automation::SnapshotEnumerator>(std::move(controls));
}

// --- one of them ---------------------------------------------------------------------------------

CommandBarControl::CommandBarControl(SessionPointer session, MenuEntryPointer entry)
    : OfficeObject(std::move(session)), entry_(std::move(entry)) {}

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
          .Get(4, "BuiltIn", &C::GetBuiltIn, "Whether the control is one of the office's.")
          .Method(5, "Delete", &C::Delete, {Optional("Temporary")}, "Removes the control.");
  return table;
}

void RequireThere(const MenuEntry& entry) {
  if (entry.deleted) Fail("The menu entry \"" + entry.caption + "\" has been deleted");
}

automation::Connection CommandBarControl::Connect(automation::EventHandler handler) {
  RequireThere(*entry_);
  return entry_->events.Connect(std::move(handler));
}

void CommandBarControl::RaiseClick(const SessionPointer& session, const MenuEntryPointer& entry) {
  static const automation::Member kClick{"Click"};
  const automation::Argument control(Object(std::make_shared<CommandBarControl>(session, entry)));
  entry->events.Raise(kClick, {&control, 1});
}

void CommandBarControl::RequireAlive() const { RequireThere(*entry_); }

Variant CommandBarControl::GetCaption() const { return entry_->caption; }
void CommandBarControl::LetCaption(const std::string& caption) {
  Office()->Menu().PutCaption(entry_, caption);
}
Variant CommandBarControl::GetTag() const { return entry_->tag; }
void CommandBarControl::LetTag(const std::string& tag) { entry_->tag = tag; }
Variant CommandBarControl::GetOnAction() const { return entry_->onAction; }
void CommandBarControl::LetOnAction(const std::string& macro) { entry_->onAction = macro; }
Variant CommandBarControl::GetBuiltIn() const { return entry_->id == 0; }
void CommandBarControl::Delete(const Variant& /*temporary*/) { Office()->Menu().Remove(entry_); }

}  // namespace rangewerks::hosts::libreoffice
