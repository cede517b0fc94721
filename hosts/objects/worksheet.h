// The late-bound Worksheet.
#pragma once

#include <optional>

#include "hosts/objects/collection.h"
#include "hosts/objects/range.h"

namespace rangewerks::hosts::objects {

class Worksheet : public HostObject {
 public:
  const MemberTable& Members() const final;

  /// The cells of a name or address, or from one corner to the other. Raises 1004 when there is no
  /// such name on this sheet, nor an address.
  Variant GetRange(const Variant& first, const Variant& second) const;
  /// All cells, or one of them.
  Variant GetCells(const Variant& row, const Variant& column) const;

 protected:
  /// What a name refers to: cells of this sheet, or as text something else.
  struct Reference {
    std::optional<Area> cells;
    std::string other;
  };

  Variant Carry(const Invocation& call) final;

  virtual std::string SheetName() const = 0;
  /// What tells the sheet from all others, as Range::Sheet.
  virtual const void* Sheet() const noexcept = 0;
  virtual std::shared_ptr<Range> Make(const Area& area) const = 0;
  /// What the name refers to; a name of this sheet goes before one of the workbook. None when there
  /// is no such name. Only the full text of a name `hasSheet`.
  virtual std::optional<Reference> FindName(const std::string& name, bool hasSheet) const = 0;

  virtual void LetName(const std::string& name) = 0;
  virtual Variant GetIndex() const = 0;
  virtual std::shared_ptr<Collection> Names() const = 0;
  virtual Variant GetParent() const = 0;
  virtual Variant GetApplication() const = 0;
  virtual void Activate() = 0;
  virtual void Delete() = 0;

 private:
  Variant GetName() const;
  Variant GetNames(const Variant& index) const;

  Area AreaOf(const Variant& cells) const;
  Area AreaOf(const std::string& nameOrAddress) const;
  [[noreturn]] void RefuseRange(const std::string& nameOrAddress, const std::string& reason) const;
};

}  // namespace rangewerks::hosts::objects
