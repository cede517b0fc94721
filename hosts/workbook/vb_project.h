// The late-bound macro project of a workbook in memory: VBProject, its VBComponents, one
// VBComponent of them.
#pragma once

#include "hosts/objects/vb_project.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class VBProject final : public ModelObject<objects::VBProject> {
 public:
  VBProject(SessionPointer session, Book* book) : ModelObject(std::move(session)), book_(book) {}

 protected:
  std::shared_ptr<objects::Collection> Components() const override;

 private:
  Book* book_;
};

class VBComponents final : public ModelObject<objects::VBComponents> {
 public:
  VBComponents(SessionPointer session, Book* book) : ModelObject(std::move(session)), book_(book) {}

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  std::string BookName() const override { return book_->name; }
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override;
  Variant AddModule(bool isClass) override;
  bool TryRemove(const objects::VBComponent& component) override;
  Variant GetParent() const override;

 private:
  Book* book_;
};

class VBComponent final : public ModelObject<objects::VBComponent> {
 public:
  VBComponent(SessionPointer session, Book* book, MacroModulePointer module)
      : ModelObject(std::move(session)), book_(book), module_(std::move(module)) {}

  const MacroModulePointer& Data() const noexcept { return module_; }
  const Book* OfBook() const noexcept { return book_; }

 protected:
  void RequireAlive() const override;
  Variant GetName() const override { return module_->name; }
  void LetName(const std::string& name) override;
  Variant GetType() const override { return static_cast<std::int32_t>(module_->kind); }
  Variant GetCodeModule() const override;

 private:
  Book* book_;
  MacroModulePointer module_;
};

}  // namespace rangewerks::hosts::workbook
