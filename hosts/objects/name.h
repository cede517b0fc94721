// The late-bound Name, one defined name, and Names: those of a workbook or of one of its sheets.
#pragma once

#include "hosts/objects/collection.h"
#include "hosts/objects/range.h"

namespace rangewerks::hosts::objects {

class Name : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  virtual std::string FullText() = 0;
  /// Whether the name is one of the sheet of that name.
  virtual bool IsOfSheet(const std::string& sheet) = 0;
  /// `text` is without a sheet in front; `given` is what the caller gave, for messages. Raises 1004
  /// for a text that can't be a name or is one already.
  virtual void Rename(const std::string& text, const std::string& given) = 0;
  virtual std::string RefersTo() = 0;
  virtual void LetRefersTo(const Variant& content) = 0;
  /// Null when the name refers to something else than cells.
  virtual std::shared_ptr<Range> FindCells() = 0;
  virtual Variant GetParent() = 0;
  virtual Variant GetApplication() = 0;
  virtual void Delete() = 0;

 private:
  Variant GetName();
  void LetName(const std::string& given);
  Variant GetRefersTo();
  Variant GetRefersToRange();
};

class Names : public NamedCollection {
 public:
  const MemberTable& Members() const final;

 protected:
  Names() : NamedCollection("name") {}

  automation::ErrorNumber Missing() const final {
    return automation::ErrorNumber::ApplicationDefined;
  }
  virtual Variant Add(const std::string& name, const Variant& refersTo) = 0;
  virtual Variant GetParent() const = 0;
  virtual Variant GetApplication() const = 0;
};

}  // namespace rangewerks::hosts::objects
