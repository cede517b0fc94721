// The late-bound macro project of a workbook: VBProject, its VBComponents, one VBComponent of them.
#pragma once

#include "hosts/objects/collection.h"

namespace rangewerks::hosts::objects {

class VBProject : public HostObject {
 public:
  const MemberTable& Members() const override;

 protected:
  virtual std::shared_ptr<Collection> Components() const = 0;

 private:
  Variant GetComponents(const Variant& index) const;
};

/// One module.
class VBComponent : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  virtual Variant GetName() const = 0;
  virtual void LetName(const std::string& name) = 0;
  virtual Variant GetType() const = 0;
  virtual Variant GetCodeModule() const = 0;
};

/// The modules in their order: the workbook's, those of the sheets, those added.
class VBComponents : public NamedCollection {
 public:
  const MemberTable& Members() const final;

 protected:
  VBComponents() : NamedCollection("module") {}

  /// Adds a standard module, or a class.
  virtual Variant AddModule(bool isClass) = 0;
  /// False when the module isn't one of these. Raises 1004 for one that can't be removed.
  virtual bool TryRemove(const VBComponent& component) = 0;
  virtual Variant GetParent() const = 0;

 private:
  Variant Add(std::int32_t type);
  void Remove(const Variant& component);
};

}  // namespace rangewerks::hosts::objects
