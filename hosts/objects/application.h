// The late-bound Application: the spreadsheet program itself.
#pragma once

#include "hosts/objects/collection.h"
#include "hosts/objects/range.h"
#include "hosts/objects/worksheet.h"

namespace rangewerks::hosts::objects {

class Application : public HostObject {
 public:
  const MemberTable& Members() const override;

 protected:
  Variant Carry(const Invocation& call) final;

  virtual Variant GetName() const = 0;
  virtual Variant GetVersion() const = 0;
  virtual std::shared_ptr<Collection> Workbooks() const = 0;
  /// The names and the sheets of the active workbook. Both raise 1004 when none is open.
  virtual std::shared_ptr<Collection> Names() const = 0;
  virtual std::shared_ptr<Collection> Sheets() const = 0;
  /// Null when no workbook is open, as the next one.
  virtual std::shared_ptr<HostObject> ActiveWorkbook() const = 0;
  virtual std::shared_ptr<Worksheet> ActiveSheet() const = 0;
  virtual Variant GetSelection() const = 0;
  virtual Variant GetInternational(const Variant& index) const = 0;
  virtual std::shared_ptr<Collection> CommandBars() const = 0;
  virtual std::shared_ptr<HostObject> MenuOfCells() const = 0;

 private:
  Variant GetWorkbooks(const Variant& index) const;
  Variant GetNames(const Variant& index) const;
  Variant GetSheets(const Variant& index) const;
  Variant GetActiveWorkbook() const;
  Variant GetActiveSheet() const;
  Variant GetApplication();
  Variant Intersect(const Variant& first, const Variant& second) const;
  Variant GetRange(const Variant& first, const Variant& second) const;
  Variant GetCells(const Variant& row, const Variant& column) const;
  Variant GetCommandBars(const Variant& index) const;
  Variant GetShortcutMenus(std::int32_t index) const;

  /// Raises 1004 when no workbook is open.
  std::shared_ptr<Worksheet> SheetInFront() const;
  std::shared_ptr<Range> RangeArgument(const Variant& value) const;
};

}  // namespace rangewerks::hosts::objects
