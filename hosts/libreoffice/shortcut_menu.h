// The late-bound Menu and MenuItems: the menu of the cells, as Application.ShortcutMenus gives it.
#pragma once

#include "hosts/libreoffice/command_bars.h"

namespace rangewerks::hosts::libreoffice {

class Menu final : public OfficeObject<> {
 public:
  explicit Menu(SessionPointer session) : OfficeObject(std::move(session)) {}
  /// Raises 9 for another number than that of the cells.
  static Variant Of(const SessionPointer& session, std::int32_t index);
  const MemberTable& Members() const override;

 private:
  Variant GetMenuItems(const Variant& index) const;
};

class MenuItems final : public OfficeObject<> {
 public:
  explicit MenuItems(SessionPointer session) : OfficeObject(std::move(session)) {}
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
};

class MenuItem final : public OfficeObject<> {
 public:
  MenuItem(SessionPointer session, MenuEntryPointer entry);
  const MemberTable& Members() const override;

 protected:
  void RequireAlive() const override { RequireThere(*entry_); }

 private:
  Variant GetCaption() const;
  void LetCaption(const std::string& caption);
  Variant GetOnAction() const;
  void LetOnAction(const std::string& macro);
  void Delete();

  MenuEntryPointer entry_;
};

}  // namespace rangewerks::hosts::libreoffice
