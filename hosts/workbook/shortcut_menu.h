// The late-bound menus of the older kind: a Menu that a right click opens, its MenuItems, one
// MenuItem of them. They are the entries that command bars have as controls.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Menu final : public ModelObject<> {
 public:
  Menu(SessionPointer session, MenuBarPointer bar);
  /// The shortcut menu of that number: 3, that of the cells. Raises 9 for all others.
  static Variant Of(const SessionPointer& session, std::int32_t index);
  const MemberTable& Members() const override;

 private:
  Variant GetMenuItems(const Variant& index) const;

  MenuBarPointer bar_;
};

class MenuItems final : public ModelObject<> {
 public:
  MenuItems(SessionPointer session, MenuBarPointer bar);
  const MemberTable& Members() const override;
  /// The item at a position or of a caption. Raises 9 when there is none.
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant GetCount() const;
  Variant Add(const std::string& caption, const Variant& onAction, const Variant& shortcutKey,
              const Variant& before, const Variant& restore, const Variant& statusBar,
              const Variant& helpFile, const Variant& helpContext);

  MenuBarPointer bar_;
};

class MenuItem final : public ModelObject<> {
 public:
  MenuItem(SessionPointer session, MenuBarPointer bar, MenuEntryPointer entry);
  const MemberTable& Members() const override;

 protected:
  void RequireAlive() const override;

 private:
  Variant GetCaption() const;
  void LetCaption(const std::string& value);
  Variant GetOnAction() const;
  void LetOnAction(const std::string& value);
  void Delete();

  MenuBarPointer bar_;
  MenuEntryPointer entry_;
};

}  // namespace rangewerks::hosts::workbook
