// The menu bar of a form. Private to this folder's sources.
#pragma once

#include <windows.h>

#include <unordered_map>
#include <vector>

#include "forms/menu.h"

namespace rangewerks::desktops {

class MenuBar {
 public:
  MenuBar() = default;
  MenuBar(const MenuBar&) = delete;
  MenuBar& operator=(const MenuBar&) = delete;
  /// A menu that a window has goes with the window.
  ~MenuBar() = default;

  /// Makes the menus; null when there are no entries.
  HMENU Make(const std::vector<forms::MenuEntry*>& entries);
  /// Shows the caption and the state that an entry has now.
  void Changed(HWND form, const forms::MenuEntry& entry);
  /// The entry behind a command; null for a command that isn't the menu's.
  forms::MenuEntry* EntryOf(WORD command) const;

 private:
  struct Shown {
    HMENU menu = nullptr;
    UINT position = 0;
  };
  void Fill(HMENU menu, const std::vector<forms::MenuEntry*>& entries);

  std::vector<forms::MenuEntry*> byCommand_;
  std::unordered_map<const forms::MenuEntry*, Shown> shown_;
};

}  // namespace rangewerks::desktops
