#include "hosts/objects/shortcut_menu.h"

namespace rangewerks::hosts::objects {

const MemberTable& Menu::Members() const {
  static const MemberTable table = MemberTable::For<Menu>("Menu").Get(
      1, "MenuItems", &Menu::GetMenuItems, {Optional("Index")}, "All items, or one of them.");
  return table;
}

Variant Menu::GetMenuItems(const Variant& index) const { return AllOrOne(Items(), index); }

const MemberTable& MenuItems::Members() const {
  static const MemberTable table =
      MemberTable::For<MenuItems>("MenuItems")
          .Get(0, "Item", &MenuItems::GetItem, {"Index"}, "The item of a caption or position.")
          .Get(1, "Count", &MenuItems::GetCount, "Number of items.")
          .Method(2, "Add", &MenuItems::Add,
                  {"Caption", Optional("OnAction"), Optional("ShortcutKey"), Optional("Before"),
                   Optional("Restore"), Optional("StatusBar"), Optional("HelpFile"),
                   Optional("HelpContextID")},
                  "A new item, at the end or ahead of the one of a caption or position.");
  return table;
}

Variant MenuItems::Add(const std::string& caption, const Variant& onAction,
                       const Variant& /*shortcutKey*/, const Variant& before,
                       const Variant& /*restore*/, const Variant& /*statusBar*/,
                       const Variant& /*helpFile*/, const Variant& /*helpContext*/) {
  const std::string macro = onAction.IsMissing() ? "" : TextArgument(onAction);
  const auto item = AddItem(caption, before);
  item->LetOnAction(macro);
  return item;
}

const MemberTable& MenuItem::Members() const {
  static const MemberTable table =
      MemberTable::For<MenuItem>("MenuItem")
          .Get(1, "Caption", &MenuItem::GetCaption, "The text, with \"&\" ahead of its access key.")
          .Let(1, "Caption", &MenuItem::LetCaption, "The text, with \"&\" ahead of its access key.")
          .Get(2, "OnAction", &MenuItem::GetOnAction, "Name of a macro; no macros are run here.")
          .Let(2, "OnAction", &MenuItem::LetOnAction, "Name of a macro; no macros are run here.")
          .Method(3, "Delete", &MenuItem::Remove, {}, "Removes the item.");
  return table;
}

}  // namespace rangewerks::hosts::objects
