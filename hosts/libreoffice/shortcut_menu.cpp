#include "hosts/libreoffice/shortcut_menu.h"

#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/workbook.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::libreoffice {

// --- the menu ------------------------------------------------------------------------------------

Variant Menu::Of(const SessionPointer& session, std::int32_t index) {
  if (index != excel::xlWorksheetCell) {
    FailElement("There is no shortcut menu number " + std::to_string(index) +
                " here, only 3, that of the cells");
  }
  return std::make_shared<Menu>(session);
}

const MemberTable& Menu::Members() const {
  static const MemberTable table = MemberTable::For<Menu>("Menu").Get(
      1, "MenuItems", &Menu::GetMenuItems, {Optional("Index")}, "All items, or one of them.");
  return table;
}

Variant Menu::GetMenuItems(const Variant& index) const {
  return Element<MenuItems>(index, Office());
}

// --- its items -----------------------------------------------------------------------------------

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

Variant MenuItems::GetItem(const Variant& index) const {
  return std::make_shared<MenuItem>(Office(), Office()->Menu().EntryAt(index));
}

Variant MenuItems::GetCount() const {
  return static_cast<std::int32_t>(Office()->Menu().Entries().size());
}

Variant MenuItems::Add(const std::string& caption, const Variant& onAction,
                       const Variant& /*shortcutKey*/, const Variant& before,
                       const Variant& /*restore*/, const Variant& /*statusBar*/,
                       const Variant& /*helpFile*/, const Variant& /*helpContext*/) {
  const std::string macro = onAction.IsMissing() ? "" : TextArgument(onAction);
  const MenuEntryPointer entry = Office()->Menu().Add(caption, before);
  entry->onAction = macro;
  return std::make_shared<MenuItem>(Office(), entry);
}

std::unique_ptr<Enumerator> MenuItems::Walk() {
  std::vector<Variant> items;
  for (const MenuEntryPointer& entry : Office()->Menu().Entries()) {
    items.emplace_back(std::make_shared<MenuItem>(Office(), entry));
  }
  return std::make_unique<automation::SnapshotEnumerator>(std::move(items));
}

// --- one of them ---------------------------------------------------------------------------------

MenuItem::MenuItem(SessionPointer session, MenuEntryPointer entry)
    : OfficeObject(std::move(session)), entry_(std::move(entry)) {}

const MemberTable& MenuItem::Members() const {
  static const MemberTable table =
      MemberTable::For<MenuItem>("MenuItem")
          .Get(1, "Caption", &MenuItem::GetCaption, "The text, with \"&\" ahead of its access key.")
          .Let(1, "Caption", &MenuItem::LetCaption, "The text, with \"&\" ahead of its access key.")
          .Get(2, "OnAction", &MenuItem::GetOnAction, "Name of a macro; no macros are run here.")
          .Let(2, "OnAction", &MenuItem::LetOnAction, "Name of a macro; no macros are run here.")
          .Method(3, "Delete", &MenuItem::Delete, {}, "Removes the item.");
  return table;
}

Variant MenuItem::GetCaption() const { return entry_->caption; }
void MenuItem::LetCaption(const std::string& caption) {
  Office()->Menu().PutCaption(entry_, caption);
}
Variant MenuItem::GetOnAction() const { return entry_->onAction; }
void MenuItem::LetOnAction(const std::string& macro) { entry_->onAction = macro; }
void MenuItem::Delete() { Office()->Menu().Remove(entry_); }

}  // namespace rangewerks::hosts::libreoffice
