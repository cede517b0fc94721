// The late-bound Workbook.
#pragma once

#include "hosts/objects/collection.h"

namespace rangewerks::hosts::objects {

class Workbook : public HostObject {
 public:
  const MemberTable& Members() const override;

 protected:
  virtual std::string BookName() const = 0;
  /// The file with its folder; empty without one.
  virtual std::string File() const = 0;
  virtual std::shared_ptr<Collection> Names() const = 0;
  virtual std::shared_ptr<Collection> Sheets() const = 0;
  virtual Variant GetActiveSheet() const = 0;
  virtual Variant GetApplication() const = 0;
  virtual void Activate() = 0;
  /// Raises 1004 where access to macros isn't trusted.
  virtual Variant GetVBProject() const = 0;
  virtual std::shared_ptr<Collection> CustomDocumentProperties() const = 0;
  virtual void SaveCopyAs(const std::string& path) = 0;

 private:
  Variant GetName() const;
  Variant GetPath() const;
  Variant GetFullName() const;
  Variant GetNames(const Variant& index) const;
  Variant GetSheets(const Variant& index) const;
  Variant GetCustomDocumentProperties(const Variant& index) const;
};

/// The open workbooks.
class Workbooks : public NamedCollection {
 public:
  const MemberTable& Members() const override;

 protected:
  Workbooks() : NamedCollection("open workbook") {}

  virtual Variant GetApplication() const = 0;
  virtual Variant Add() = 0;
};

/// The sheets of a workbook.
class Sheets : public NamedCollection {
 public:
  const MemberTable& Members() const override;

 protected:
  Sheets() : NamedCollection("sheet") {}

  virtual Variant GetParent() const = 0;
  virtual Variant GetApplication() const = 0;
};

}  // namespace rangewerks::hosts::objects
