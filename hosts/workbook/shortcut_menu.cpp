#include "hosts/workbook/shortcut_menu.h"

namespace rangewerks::hosts::workbook {

std::shared_ptr<objects::Collection> Menu::Items() const {
  return std::make_shared<MenuItems>(Shared(), bar_);
}

Variant MenuItems::GetItem(const Variant& index) const {
  return std::make_shared<MenuItem>(Shared(), bar_, bar_->entries[PlaceOfEntry(*bar_, index)]);
}

Variant MenuItems::GetCount() const { return static_cast<std::int32_t>(bar_->entries.size()); }

std::shared_ptr<objects::MenuItem> MenuItems::AddItem(const std::string& caption,
                                                      const Variant& before) {
  return std::make_shared<MenuItem>(Shared(), bar_, AddEntry(*bar_, caption, before));
}

std::unique_ptr<Enumerator> MenuItems::Walk() {
  return objects::WalkThrough(bar_->entries, [this](const MenuEntryPointer& entry) {
    return std::make_shared<MenuItem>(Shared(), bar_, entry);
  });
}

}  // namespace rangewerks::hosts::workbook
