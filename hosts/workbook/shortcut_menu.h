// The late-bound Menu, MenuItems and MenuItem of a workbook in memory.
#pragma once

#include "hosts/objects/shortcut_menu.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Menu final : public ModelObject<objects::Menu> {
 public:
  Menu(SessionPointer session, MenuBarPointer bar)
      : ModelObject(std::move(session)), bar_(std::move(bar)) {}

 protected:
  std::shared_ptr<objects::Collection> Items() const override;

 private:
  MenuBarPointer bar_;
};

class MenuItem final : public ModelObject<objects::MenuItem> {
 public:
  MenuItem(SessionPointer session, MenuBarPointer bar, MenuEntryPointer entry)
      : ModelObject(std::move(session)), bar_(std::move(bar)), entry_(std::move(entry)) {}

 protected:
  MenuEntry& Entry() const override { return *entry_; }
  void LetCaption(const std::string& caption) override { entry_->caption = caption; }
  void Remove() override { RemoveEntry(*bar_, entry_); }

 private:
  MenuBarPointer bar_;
  MenuEntryPointer entry_;
};

class MenuItems final : public ModelObject<objects::MenuItems> {
 public:
  MenuItems(SessionPointer session, MenuBarPointer bar)
      : ModelObject(std::move(session)), bar_(std::move(bar)) {}

  Variant GetItem(const Variant& index) const override;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  Variant GetCount() const override;
  std::shared_ptr<objects::MenuItem> AddItem(const std::string& caption,
                                             const Variant& before) override;

 private:
  MenuBarPointer bar_;
};

}  // namespace rangewerks::hosts::workbook
