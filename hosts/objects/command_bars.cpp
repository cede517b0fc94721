#include "hosts/objects/command_bars.h"

namespace rangewerks::hosts::objects {

const MemberTable& CommandBars::Members() const {
  static const MemberTable table =
      MemberTable::For<CommandBars>("CommandBars")
          .Get(0, "Item", &CommandBars::GetItem, {"Index"}, "The bar of a name or position.")
          .Get(1, "Count", &CommandBars::GetCount, "Number of bars.");
  return table;
}

const MemberTable& CommandBar::Members() const {
  static const MemberTable table =
      MemberTable::For<CommandBar>("CommandBar")
          .Get(1, "Name", &CommandBar::GetName, "The bar's name, which other bars can have too.")
          .Get(2, "Controls", &CommandBar::GetControls, {Optional("Index")},
               "All controls, or one of them.");
  return table;
}

Variant CommandBar::GetControls(const Variant& index) const { return AllOrOne(Controls(), index); }

const MemberTable& CommandBarControls::Members() const {
  static const MemberTable table =
      MemberTable::For<CommandBarControls>("CommandBarControls")
          .Get(0, "Item", &CommandBarControls::GetItem, {"Index"},
               "The control of a caption or at a position.")
          .Get(1, "Count", &CommandBarControls::GetCount, "Number of controls.");
  return table;
}

// --- one of them ---------------------------------------------------------------------------------

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
          .Method(6, "Delete", &C::Delete, {Optional("Temporary")}, "Removes the control.");
  return table;
}

automation::Connection CommandBarControl::Connect(automation::EventHandler handler) {
  RequireAlive();
  return Entry().events.Connect(std::move(handler));
}

void CommandBarControl::RaiseClick() {
  static const automation::Member kClick{"Click"};
  const Object self = Self();  // a handler may delete the entry
  const automation::Argument control(self);
  Entry().events.Raise(kClick, {&control, 1});
}

Variant CommandBarControl::GetTag() const { return Entry().tag; }
void CommandBarControl::LetTag(const std::string& tag) { Entry().tag = tag; }
void CommandBarControl::Delete(const Variant& /*temporary*/) { Remove(); }

}  // namespace rangewerks::hosts::objects
