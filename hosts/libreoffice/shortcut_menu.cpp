#include "hosts/libreoffice/shortcut_menu.h"

namespace rangewerks::hosts::libreoffice {

std::shared_ptr<objects::Collection> Menu::Items() const {
  return std::make_shared<MenuItems>(Office());
}

Variant MenuItems::GetItem(const Variant& index) const {
  return std::make_shared<MenuItem>(Office(), Office()->Menu().EntryAt(index));
}

Variant MenuItems::GetCount() const {
  return static_cast<std::int32_t>(Office()->Menu().Entries().size());
}

std::shared_ptr<objects::MenuItem> MenuItems::AddItem(const std::string& caption,
                                                      const Variant& before) {
  return std::make_shared<MenuItem>(Office(), Office()->Menu().Add(caption, before));
}

std::unique_ptr<Enumerator> MenuItems::Walk() {
  return objects::WalkThrough(Office()->Menu().Entries(), [this](const MenuEntryPointer& entry) {
    return std::make_shared<MenuItem>(Office(), entry);
  });
}

}  // namespace rangewerks::hosts::libreoffice
