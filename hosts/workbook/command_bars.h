// The late-bound CommandBars, CommandBar, CommandBarControls and CommandBarControl of a workbook in
// memory.
#pragma once

#include "hosts/objects/command_bars.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class CommandBars final : public ModelObject<objects::CommandBars> {
 public:
  explicit CommandBars(SessionPointer session) : ModelObject(std::move(session)) {}

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override;
};

class CommandBar final : public ModelObject<objects::CommandBar> {
 public:
  CommandBar(SessionPointer session, MenuBarPointer bar)
      : ModelObject(std::move(session)), bar_(std::move(bar)) {}

 protected:
  Variant GetName() const override { return bar_->name; }
  std::shared_ptr<objects::Collection> Controls() const override;

 private:
  MenuBarPointer bar_;
};

class CommandBarControls final : public ModelObject<objects::CommandBarControls> {
 public:
  CommandBarControls(SessionPointer session, MenuBarPointer bar)
      : ModelObject(std::move(session)), bar_(std::move(bar)) {}

  /// Those of every host, and Add.
  const MemberTable& Members() const override;
  Variant GetItem(const Variant& index) const override;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  Variant GetCount() const override;

 private:
  Variant Add(const Variant& type, const Variant& id, const Variant& parameter,
              const Variant& before, const Variant& temporary);

  MenuBarPointer bar_;
};

class CommandBarControl final : public ModelObject<objects::CommandBarControl> {
 public:
  CommandBarControl(SessionPointer session, MenuBarPointer bar, MenuEntryPointer entry)
      : ModelObject(std::move(session)), bar_(std::move(bar)), entry_(std::move(entry)) {}

  /// Those of every host, Index and Execute.
  const MemberTable& Members() const override;

 protected:
  MenuEntry& Entry() const override { return *entry_; }
  void LetCaption(const std::string& caption) override { entry_->caption = caption; }
  void Remove() override { RemoveEntry(*bar_, entry_); }

 private:
  Variant GetIndex() const;

  MenuBarPointer bar_;
  MenuEntryPointer entry_;
};

}  // namespace rangewerks::hosts::workbook
