// The late-bound Names: the names of a workbook, or of one of its sheets.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Names final : public ModelObject<> {
 public:
  Names(SessionPointer session, Book* book, SheetPointer sheet = nullptr);

  const MemberTable& Members() const override;
  /// The name of that text or at that position. Raises 1004 when there is none.
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  void RequireAlive() const override;

 private:
  std::vector<NamePointer> All() const;
  Variant GetCount() const;
  Variant Add(const Variant& name, const Variant& refersTo);
  Variant GetParent() const;
  Variant GetApplication() const;

  Book* book_;
  SheetPointer sheet_;
};

}  // namespace rangewerks::hosts::workbook
