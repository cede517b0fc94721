// The menu that a right click on a cell opens, with the office's entries and those added to it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "hosts/libreoffice/book.h"
#include "hosts/libreoffice/menu_board.h"
#include "hosts/objects/menu_entry.h"

namespace rangewerks::hosts::libreoffice {

struct MenuEntry : objects::MenuEntry {
  std::int32_t id = 0;  ///< 0 for an entry of the office's
  std::string command;  ///< of an entry of the office's
};
using MenuEntryPointer = std::shared_ptr<MenuEntry>;

/// The office's entries are those of its configuration, of which a menu that opens shows what fits
/// the cell; lines between them aren't counted. Added entries stay as long as the office runs.
class CellMenu {
 public:
  explicit CellMenu(Session& session);

  const std::vector<MenuEntryPointer>& Entries() const noexcept { return entries_; }
  /// The entry at a position from 1 or of a caption. Raises 9 when there is none.
  MenuEntryPointer EntryAt(const automation::Variant& index) const;

  /// Puts an entry ahead of the one at a position or of a caption, or at the end when `before` is
  /// missing. Raises 9 when that one isn't there.
  MenuEntryPointer Add(const std::string& caption, const automation::Variant& before);
  /// Raises 1004 for an entry of the office's, as the next one.
  void Remove(const MenuEntryPointer& entry);
  void PutCaption(const MenuEntryPointer& entry, const std::string& caption);

  /// Whether there is or was an added entry, so that windows show what was added.
  bool IsShown() const noexcept { return lastId_ > 0; }
  void ShowIn(Book& book);

  /// The entry that was chosen; null when none was within that time. One that has been deleted
  /// since isn't told.
  MenuEntryPointer TakeChoice(std::chrono::milliseconds wait);

 private:
  std::size_t PlaceOf(const automation::Variant& index) const;
  void TellOffice();

  Session* session_;
  std::vector<MenuEntryPointer> entries_;
  std::int32_t lastId_ = 0;
  std::shared_ptr<MenuBoard> board_ = std::make_shared<MenuBoard>();
};

}  // namespace rangewerks::hosts::libreoffice
