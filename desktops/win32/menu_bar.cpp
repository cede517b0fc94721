#include "desktops/win32/menu_bar.h"

#include <string>

#include "desktops/win32/text.h"

namespace rangewerks::desktops {

namespace {

/// Below stand the numbers that Windows gives to keys such as Enter.
constexpr std::size_t kFirstCommand = 100;

UINT StateOf(const forms::MenuEntry& entry) {
  const forms::MenuEntry::State& now = entry.Properties();
  return (now.enabled ? MFS_ENABLED : MFS_DISABLED) | (now.checked ? MFS_CHECKED : MFS_UNCHECKED);
}

}  // namespace

HMENU MenuBar::Make(const std::vector<forms::MenuEntry*>& entries) {
  if (entries.empty()) return nullptr;
  HMENU bar = CreateMenu();
  Fill(bar, entries);
  return bar;
}

void MenuBar::Fill(HMENU menu, const std::vector<forms::MenuEntry*>& entries) {
  UINT position = 0;
  for (forms::MenuEntry* entry : entries) {
    std::wstring caption = Utf16Of(entry->Properties().caption);
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STATE;
    item.wID = static_cast<UINT>(kFirstCommand + byCommand_.size());
    item.fState = StateOf(*entry);
    item.fType = MFT_SEPARATOR;
    if (!entry->IsSeparator()) {
      item.fType = MFT_STRING;
      item.fMask |= MIIM_STRING;
      item.dwTypeData = caption.data();
    }
    byCommand_.push_back(entry);
    shown_[entry] = {menu, position};
    if (!entry->Entries().empty()) {
      item.fMask |= MIIM_SUBMENU;
      item.hSubMenu = CreatePopupMenu();
      Fill(item.hSubMenu, entry->Entries());
    }
    InsertMenuItemW(menu, position, TRUE, &item);
    ++position;
  }
}

void MenuBar::Changed(HWND form, const forms::MenuEntry& entry) {
  const auto found = shown_.find(&entry);
  if (found == shown_.end()) return;
  std::wstring caption = Utf16Of(entry.Properties().caption);
  MENUITEMINFOW item{};
  item.cbSize = sizeof item;
  item.fMask = MIIM_STATE | MIIM_FTYPE | (entry.IsSeparator() ? 0U : MIIM_STRING);
  item.fType = entry.IsSeparator() ? MFT_SEPARATOR : MFT_STRING;
  item.fState = StateOf(entry);
  item.dwTypeData = caption.data();
  SetMenuItemInfoW(found->second.menu, found->second.position, TRUE, &item);
  if (GetMenu(form) == found->second.menu) DrawMenuBar(form);
}

forms::MenuEntry* MenuBar::EntryOf(WORD command) const {
  const std::size_t index = static_cast<std::size_t>(command) - kFirstCommand;
  return command >= kFirstCommand && index < byCommand_.size() ? byCommand_[index] : nullptr;
}

}  // namespace rangewerks::desktops
