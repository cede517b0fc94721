// The late-bound menus of the program: CommandBars, one CommandBar of them, its CommandBarControls,
// one CommandBarControl of those.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class CommandBars final : public ModelObject<> {
 public:
  explicit CommandBars(SessionPointer session);
  const MemberTable& Members() const override;
  /// The bar at a position, or the first one of a name. Raises 9 when there is none.
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant GetCount() const;
};

class CommandBar final : public ModelObject<> {
 public:
  CommandBar(SessionPointer session, MenuBarPointer bar);
  const MemberTable& Members() const override;

 private:
  Variant GetName() const;
  Variant GetControls(const Variant& index) const;

  MenuBarPointer bar_;
};

class CommandBarControls final : public ModelObject<> {
 public:
  CommandBarControls(SessionPointer session, MenuBarPointer bar);
  const MemberTable& Members() const override;
  /// The control at a position or of a caption. Raises 9 when there is none.
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant GetCount() const;
  Variant Add(const Variant& type, const Variant& id, const Variant& parameter,
              const Variant& before, const Variant& temporary);

  MenuBarPointer bar_;
};

/// Event: Click, with the control, when a person chooses it.
class CommandBarControl final : public ModelObject<> {
 public:
  CommandBarControl(SessionPointer session, MenuBarPointer bar, MenuEntryPointer entry);
  const MemberTable& Members() const override;
  automation::Connection Connect(automation::EventHandler handler) override;

 protected:
  void RequireAlive() const override;

 private:
  Variant GetCaption() const;
  void LetCaption(const std::string& value);
  Variant GetTag() const;
  void LetTag(const std::string& value);
  Variant GetOnAction() const;
  void LetOnAction(const std::string& value);
  Variant GetIndex() const;
  void Execute();
  void Delete(const Variant& temporary);

  MenuBarPointer bar_;
  MenuEntryPointer entry_;
};

}  // namespace rangewerks::hosts::workbook
