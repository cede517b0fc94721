// The late-bound menus of the older kind: a Menu that a right click opens, its MenuItems, one
// MenuItem of them. They are the entries that command bars have as controls.
#pragma once

#include "hosts/objects/collection.h"
#include "hosts/objects/menu_entry.h"

namespace rangewerks::hosts::objects {

class Menu : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  virtual std::shared_ptr<Collection> Items() const = 0;

 private:
  Variant GetMenuItems(const Variant& index) const;
};

class MenuItem : public MenuEntryObject {
 public:
  const MemberTable& Members() const final;
};

class MenuItems : public Collection {
 public:
  const MemberTable& Members() const final;

 protected:
  /// Adds an item ahead of the one at a position or of a caption, or at the end when `before` is
  /// missing. Raises 9 when that one isn't there.
  virtual std::shared_ptr<MenuItem> AddItem(const std::string& caption, const Variant& before) = 0;

 private:
  Variant Add(const std::string& caption, const Variant& onAction, const Variant& shortcutKey,
              const Variant& before, const Variant& restore, const Variant& statusBar,
              const Variant& helpFile, const Variant& helpContext);
};

}  // namespace rangewerks::hosts::objects
