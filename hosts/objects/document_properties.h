// The late-bound custom DocumentProperties of a workbook, and one DocumentProperty of them.
#pragma once

#include "hosts/objects/collection.h"

namespace rangewerks::hosts::objects {

class DocumentProperty : public HostObject {
 public:
  const MemberTable& Members() const final;

  /// Gives the property a value, converted to its type.
  virtual void LetValue(const Variant& value) = 0;

 protected:
  virtual Variant GetValue() const = 0;
  virtual Variant GetName() const = 0;
  virtual Variant GetType() const = 0;
  virtual Variant GetParent() const = 0;
  virtual Variant GetApplication() const = 0;
  virtual void Delete() = 0;

 private:
  Variant GetLinkToContent() const;
};

class DocumentProperties : public NamedCollection {
 public:
  const MemberTable& Members() const final;

 protected:
  DocumentProperties() : NamedCollection("document property") {}

  Variant Carry(const Invocation& call) final;
  /// A new property at the end. Raises 1004 for a name that is empty or taken, a type that isn't
  /// one, and a value that the type can't hold.
  virtual Variant AddProperty(const std::string& name, std::int32_t type, const Variant& value) = 0;
  virtual Variant GetParent() const = 0;
  virtual Variant GetApplication() const = 0;

 private:
  Variant Add(const std::string& name, bool linkToContent, const Variant& type,
              const Variant& value, const Variant& linkSource);
};

}  // namespace rangewerks::hosts::objects
