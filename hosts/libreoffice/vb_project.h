// The late-bound VBProject, VBComponents and VBComponent of the office.
#pragma once

#include "hosts/libreoffice/macro_project.h"
#include "hosts/libreoffice/office_object.h"
#include "hosts/objects/vb_project.h"

namespace rangewerks::hosts::libreoffice {

/// What the objects of a workbook's macros share: they are refused once it has been closed.
template <class Face>
class MacroObject : public OfficeObject<Face> {
 protected:
  MacroObject(SessionPointer session, BookPointer book)
      : OfficeObject<Face>(std::move(session)), book_(std::move(book)) {}
  void RequireAlive() const final { RequireOpen(*book_); }
  const BookPointer& InBook() const noexcept { return book_; }
  /// As the office has it now: nothing of it is kept between calls.
  MacroProject Project() const { return MacroProject(*book_); }

 private:
  BookPointer book_;
};

class VBProject final : public MacroObject<objects::VBProject> {
 public:
  VBProject(SessionPointer session, BookPointer book)
      : MacroObject(std::move(session), std::move(book)) {}

  /// Those of every host, and Name.
  const MemberTable& Members() const override;

 protected:
  std::shared_ptr<objects::Collection> Components() const override;

 private:
  Variant GetName() const;
};

class VBComponents final : public MacroObject<objects::VBComponents> {
 public:
  VBComponents(SessionPointer session, BookPointer book)
      : MacroObject(std::move(session), std::move(book)) {}

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  std::string BookName() const override { return InBook()->Name(); }
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override;
  Variant AddModule(bool isClass) override;
  bool TryRemove(const objects::VBComponent& component) override;
  Variant GetParent() const override;

 private:
  std::shared_ptr<objects::VBComponent> Face(const Module& module) const;
};

/// A module by the name that it had when it was asked for, or was given through this object.
class VBComponent final : public MacroObject<objects::VBComponent> {
 public:
  VBComponent(SessionPointer session, BookPointer book, std::string name)
      : MacroObject(std::move(session), std::move(book)), name_(std::move(name)) {}

  bool IsOf(const BookPointer& book) const { return InBook() == book; }
  const std::string& Name() const noexcept { return name_; }

 protected:
  Variant GetName() const override;
  void LetName(const std::string& name) override;
  Variant GetType() const override;
  Variant GetCodeModule() const override;

 private:
  std::string name_;
};

/// The module of that name. Raises 1004 when it is there no more.
Module RequiredModule(const MacroProject& project, const std::string& name);

}  // namespace rangewerks::hosts::libreoffice
