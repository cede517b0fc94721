// The late-bound Workbooks: the open workbooks.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Workbooks final : public ModelObject<> {
 public:
  explicit Workbooks(SessionPointer session);

  const MemberTable& Members() const override;
  /// The workbook of that name or at that position. Raises 9 when there is none.
  Variant GetItem(const Variant& index) const;

 protected:
  std::unique_ptr<Enumerator> Walk() override;

 private:
  Variant GetCount() const;
  Variant GetApplication() const;
  Variant Add();
  Variant Open(const Variant& path);
};

}  // namespace rangewerks::hosts::workbook
