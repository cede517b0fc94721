// The host's menus as typed references: the command bars, and the older face of the menus that a
// right click opens.
//
//   const auto bars = application.get_CommandBars().Enumerate();
//   for (Variant bar; bars->Next(bar);)
//   names.push_back(excel::CommandBar(bar.AsObject()).get_Name());
#pragma once

#include <cstdint>
#include <string>

#include "platform/excel.h"

namespace rangewerks::excel {

/// One entry of a menu.
class CommandBarControl : public Object {
 public:
  using Object::Object;
  explicit CommandBarControl(const Object& object) : Object(object) {}

  /// The text, with "&" ahead of its access key.
  std::string get_Caption() const;
  void let_Caption(const std::string& caption) const;
  /// A text by which code tells the entry.
  void let_Tag(const std::string& tag) const;
  void Delete() const;
};

/// The entries of a bar. Enumerate() walks them in their order.
class CommandBarControls : public Object {
 public:
  using Object::Object;
  explicit CommandBarControls(const Object& object) : Object(object) {}

  /// The entry of that caption. Fails when there is none.
  CommandBarControl get_Item(const std::string& caption) const;
};

class CommandBar : public Object {
 public:
  using Object::Object;
  explicit CommandBar(const Object& object) : Object(object) {}

  /// Several bars can have the same name.
  std::string get_Name() const;
  CommandBarControls get_Controls() const;
};

/// All bars. Enumerate() walks them in the host's order.
class CommandBars : public Object {
 public:
  using Object::Object;
  explicit CommandBars(const Object& object) : Object(object) {}
};

/// The entries of a shortcut menu; as controls they stand in a command bar too.
class MenuItems : public Object {
 public:
  using Object::Object;
  explicit MenuItems(const Object& object) : Object(object) {}

  /// Adds an entry that runs no macro, ahead of the one at a position from 1.
  void Add(const std::string& caption, std::int32_t before) const;
};

class Menu : public Object {
 public:
  using Object::Object;
  explicit Menu(const Object& object) : Object(object) {}

  MenuItems get_MenuItems() const;
};

}  // namespace rangewerks::excel
