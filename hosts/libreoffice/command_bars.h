// The late-bound menus of the office: CommandBars, of which there is one, its CommandBarControls,
// one CommandBarControl of those.
#pragma once

#include "hosts/libreoffice/cell_menu.h"
#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {

class CommandBars final : public OfficeObject<> {
 public:
  explicit CommandBars(SessionPointer session) : OfficeObject(std::move(session)) {}
  const MemberTable& Members() const override;
  /// Raises 9 for anything but 1 and "Cell".
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant GetCount() const;
};

/// The bar "Cell".
class CommandBar final : public OfficeObject<> {
 public:
  explicit CommandBar(SessionPointer session) : OfficeObject(std::move(session)) {}
  const MemberTable& Members() const override;

 private:
  Variant GetName() const;
  Variant GetControls(const Variant& index) const;
};

class CommandBarControls final : public OfficeObject<> {
 public:
  explicit CommandBarControls(SessionPointer session) : OfficeObject(std::move(session)) {}
  const MemberTable& Members() const override;
  /// The control at a position or of a caption. Raises 9 when there is none.
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant GetCount() const;
};

/// Event: Click, with the control, when a person's choice is told (Office::TellMenuChoices).
class CommandBarControl final : public OfficeObject<> {
 public:
  CommandBarControl(SessionPointer session, MenuEntryPointer entry);
  const MemberTable& Members() const override;
  automation::Connection Connect(automation::EventHandler handler) override;

  static void RaiseClick(const SessionPointer& session, const MenuEntryPointer& entry);

 protected:
  void RequireAlive() const override;

 private:
  Variant GetCaption() const;
  void LetCaption(const std::string& caption);
  Variant GetTag() const;
  void LetTag(const std::string& tag);
  Variant GetOnAction() const;
  void LetOnAction(const std::string& macro);
  Variant GetBuiltIn() const;
  void Delete(const Variant& temporary);

  MenuEntryPointer entry_;
};

/// Raises 1004 when the entry has been deleted.
void RequireThere(const MenuEntry& entry);

}  // namespace rangewerks::hosts::libreoffice
