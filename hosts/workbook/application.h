// The late-bound Application: the spreadsheet program itself.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Application final : public ModelObject<> {
 public:
  explicit Application(SessionPointer session);
  /// The one object of that session.
  static std::shared_ptr<Application> Of(const SessionPointer& session);

  const MemberTable& Members() const override;

 protected:
  /// Passes Testing by the call log: to look at it must not change it.
  void Note(const Invocation& call) override;
  Variant Carry(const Invocation& call) override;

 private:
  Variant GetName() const;
  Variant GetVersion() const;
  Variant GetWorkbooks(const Variant& index) const;
  Variant GetNames(const Variant& index) const;
  Variant GetSheets(const Variant& index) const;
  Variant GetActiveWorkbook() const;
  Variant GetActiveSheet() const;
  Variant GetSelection() const;
  Variant GetInternational(const Variant& index) const;
  Variant GetApplication() const;
  Variant GetRange(const Variant& first, const Variant& second) const;
  Variant GetCells(const Variant& row, const Variant& column) const;
  Variant GetCommandBars(const Variant& index) const;
  Variant GetShortcutMenus(std::int32_t index) const;
  Variant GetTesting() const;
  Variant Intersect(const Variant& first, const Variant& second) const;

  /// Raises 1004 when no workbook is open.
  Book& ActiveBook() const;
};

}  // namespace rangewerks::hosts::workbook
