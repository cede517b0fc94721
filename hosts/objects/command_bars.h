// The late-bound menus of the program: CommandBars, one CommandBar of them, its CommandBarControls,
// one CommandBarControl of those.
#pragma once

#include "hosts/objects/collection.h"
#include "hosts/objects/menu_entry.h"

namespace rangewerks::hosts::objects {

class CommandBars : public NamedCollection {
 public:
  const MemberTable& Members() const final;

 protected:
  CommandBars() : NamedCollection("command bar") {}
};

class CommandBar : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  virtual Variant GetName() const = 0;
  virtual std::shared_ptr<Collection> Controls() const = 0;

 private:
  Variant GetControls(const Variant& index) const;
};

class CommandBarControls : public Collection {
 public:
  const MemberTable& Members() const override;
};

/// Event: Click, with the control, when a person chooses it.
class CommandBarControl : public MenuEntryObject {
 public:
  const MemberTable& Members() const override;
  automation::Connection Connect(automation::EventHandler handler) final;
  void RaiseClick();

 private:
  Variant GetTag() const;
  void LetTag(const std::string& tag);
  void Delete(const Variant& temporary);
};

}  // namespace rangewerks::hosts::objects
