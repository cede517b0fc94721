// The late-bound VBProject, VBComponents and VBComponent: what Workbook.VBProject is.
#pragma once

#include "hosts/libreoffice/macro_project.h"
#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {

/// What the objects of a workbook's macros share: they are refused once it has been closed.
class MacroObject : public OfficeObject<> {
 protected:
  MacroObject(SessionPointer session, BookPointer book)
      : OfficeObject(std::move(session)), book_(std::move(book)) {}
  void RequireAlive() const override { RequireOpen(*book_); }
  const BookPointer& InBook() const noexcept { return book_; }
  /// As the office has it now: nothing of it is kept between calls.
  MacroProject Project() const { return MacroProject(*book_); }

 private:
  BookPointer book_;
};

class VBProject final : public MacroObject {
 public:
  VBProject(SessionPointer session, BookPointer book)
      : MacroObject(std::move(session), std::move(book)) {}
  const MemberTable& Members() const override;

 private:
  Variant GetName() const;
  Variant GetComponents(const Variant& index) const;
};

class VBComponents final : public MacroObject {
 public:
  VBComponents(SessionPointer session, BookPointer book)
      : MacroObject(std::move(session), std::move(book)) {}
  const MemberTable& Members() const override;
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant GetCount() const;
  Variant GetParent() const;
  Variant Add(std::int32_t type);
  void Remove(const Variant& component);
  Variant Face(const Module& module) const;
};

/// A module by the name that it had when it was asked for, or was given through this object.
class VBComponent final : public MacroObject {
 public:
  VBComponent(SessionPointer session, BookPointer book, std::string name)
      : MacroObject(std::move(session), std::move(book)), name_(std::move(name)) {}
  const MemberTable& Members() const override;

  bool IsOf(const BookPointer& book) const { return InBook() == book; }
  const std::string& Name() const noexcept { return name_; }

 private:
  Variant GetName() const;
  void LetName(const std::string& name);
  Variant GetType() const;
  Variant GetCodeModule() const;

  std::string name_;
};

/// The module of that name. Raises 1004 when it is there no more.
Module RequiredModule(const MacroProject& project, const std::string& name);

}  // namespace rangewerks::hosts::libreoffice
