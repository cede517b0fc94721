// The late-bound menus of the office: CommandBars, of which there is one, its CommandBarControls,
// one CommandBarControl of those.
#pragma once

#include "hosts/libreoffice/cell_menu.h"
#include "hosts/libreoffice/office_object.h"
#include "hosts/objects/command_bars.h"

namespace rangewerks::hosts::libreoffice {

class CommandBars final : public OfficeObject<objects::CommandBars> {
 public:
  explicit CommandBars(SessionPointer session) : OfficeObject(std::move(session)) {}

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override { return std::int32_t{1}; }
};

/// The bar "Cell".
class CommandBar final : public OfficeObject<objects::CommandBar> {
 public:
  explicit CommandBar(SessionPointer session) : OfficeObject(std::move(session)) {}

 protected:
  Variant GetName() const override;
  std::shared_ptr<objects::Collection> Controls() const override;
};

class CommandBarControls final : public OfficeObject<objects::CommandBarControls> {
 public:
  explicit CommandBarControls(SessionPointer session) : OfficeObject(std::move(session)) {}

  Variant GetItem(const Variant& index) const override;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  Variant GetCount() const override;
};

/// The event Click is raised when a person's choice is told (Office::TellMenuChoices).
class CommandBarControl final : public OfficeObject<objects::CommandBarControl> {
 public:
  CommandBarControl(SessionPointer session, MenuEntryPointer entry)
      : OfficeObject(std::move(session)), entry_(std::move(entry)) {}

  /// Those of every host, and BuiltIn.
  const MemberTable& Members() const override;

 protected:
  MenuEntry& Entry() const override { return *entry_; }
  void LetCaption(const std::string& caption) override {
    Office()->Menu().PutCaption(entry_, caption);
  }
  void Remove() override { Office()->Menu().Remove(entry_); }

 private:
  Variant GetBuiltIn() const { return entry_->id == 0; }

  MenuEntryPointer entry_;
};

}  // namespace rangewerks::hosts::libreoffice
