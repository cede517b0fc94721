// The late-bound macro project of a workbook: VBProject, its VBComponents, one VBComponent of them.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class VBProject final : public ModelObject<> {
 public:
  VBProject(SessionPointer session, Book* book);
  const MemberTable& Members() const override;

 private:
  Variant GetComponents(const Variant& index) const;

  Book* book_;
};

/// The modules in their order: the workbook's, those of the sheets, those added.
class VBComponents final : public ModelObject<> {
 public:
  VBComponents(SessionPointer session, Book* book);
  const MemberTable& Members() const override;
  /// The component of that name or at that position. Raises 9 when there is none.
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant GetCount() const;
  Variant Add(std::int32_t type);
  void Remove(const Variant& component);
  Variant Face(const MacroModulePointer& module) const;

  Book* book_;
};

class VBComponent final : public ModelObject<> {
 public:
  VBComponent(SessionPointer session, Book* book, MacroModulePointer module);
  const MemberTable& Members() const override;
  const MacroModulePointer& Data() const noexcept { return module_; }
  const Book* OfBook() const noexcept { return book_; }

 protected:
  void RequireAlive() const override;

 private:
  Variant GetName() const;
  void LetName(const std::string& name);
  Variant GetType() const;
  Variant GetCodeModule() const;

  Book* book_;
  MacroModulePointer module_;
};

}  // namespace rangewerks::hosts::workbook
