// The late-bound Menu, MenuItems and MenuItem of the office: the menu of the cells.
#pragma once

#include "hosts/libreoffice/cell_menu.h"
#include "hosts/libreoffice/office_object.h"
#include "hosts/objects/shortcut_menu.h"

namespace rangewerks::hosts::libreoffice {

class Menu final : public OfficeObject<objects::Menu> {
 public:
  explicit Menu(SessionPointer session) : OfficeObject(std::move(session)) {}

 protected:
  std::shared_ptr<objects::Collection> Items() const override;
};

class MenuItem final : public OfficeObject<objects::MenuItem> {
 public:
  MenuItem(SessionPointer session, MenuEntryPointer entry)
      : OfficeObject(std::move(session)), entry_(std::move(entry)) {}

 protected:
  MenuEntry& Entry() const override { return *entry_; }
  void LetCaption(const std::string& caption) override {
    Office()->Menu().PutCaption(entry_, caption);
  }
  void Remove() override { Office()->Menu().Remove(entry_); }

 private:
  MenuEntryPointer entry_;
};

class MenuItems final : public OfficeObject<objects::MenuItems> {
 public:
  explicit MenuItems(SessionPointer session) : OfficeObject(std::move(session)) {}

  Variant GetItem(const Variant& index) const override;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  Variant GetCount() const override;
  std::shared_ptr<objects::MenuItem> AddItem(const std::string& caption,
                                             const Variant& before) override;
};

}  // namespace rangewerks::hosts::libreoffice
