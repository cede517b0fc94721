// The late-bound Sheets: the sheets of a workbook.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Sheets final : public ModelObject<> {
 public:
  Sheets(SessionPointer session, Book* book);

  const MemberTable& Members() const override;
  /// The sheet of that name or at that position. Raises 9 when there is none.
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant Add(const Variant& before, const Variant& after);
  SheetPointer SheetArgument(const Variant& value) const;
  Variant GetCount() const;
  Variant GetParent() const;
  Variant GetApplication() const;

  Book* book_;
};

}  // namespace rangewerks::hosts::workbook
