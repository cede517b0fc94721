// The menus of the program as plain data.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "hosts/objects/menu_entry.h"

namespace rangewerks::hosts::workbook {

using objects::MenuEntry;
using MenuEntryPointer = std::shared_ptr<MenuEntry>;

/// One bar. Several can have the same name.
struct MenuBar {
  std::string name;
  std::vector<MenuEntryPointer> entries;
};
using MenuBarPointer = std::shared_ptr<MenuBar>;

/// The bars of a program as it starts. Two are named "Cell": the menu of the cells, and that of the
/// cells in the preview of page breaks.
struct Menus {
  Menus();

  std::vector<MenuBarPointer> bars;
  MenuBarPointer ofCells;
};

/// The entry at a position from 1 (a number) or of a caption (a text), with its place from 0. A
/// caption as it stands goes before one that differs in "&" and case. Raises 9 when there is none.
std::size_t PlaceOfEntry(const MenuBar& bar, const automation::Variant& index);

/// Puts an entry ahead of another one, or at the end when `before` is missing. Raises 9 when that
/// one isn't there.
MenuEntryPointer AddEntry(MenuBar& bar, const std::string& caption,
                          const automation::Variant& before);
void RemoveEntry(MenuBar& bar, const MenuEntryPointer& entry);

}  // namespace rangewerks::hosts::workbook
