// The late-bound Sheets: the sheets of a workbook.
#pragma once

#include "hosts/objects/workbook.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Sheets final : public ModelObject<objects::Sheets> {
 public:
  Sheets(SessionPointer session, Book* book) : ModelObject(std::move(session)), book_(book) {}

  /// Those of every host, and Add.
  const MemberTable& Members() const override;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  std::string BookName() const override { return book_->name; }
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override;
  Variant GetParent() const override;
  Variant GetApplication() const override;

 private:
  Variant Add(const Variant& before, const Variant& after);
  SheetPointer SheetArgument(const Variant& value) const;

  Book* book_;
};

}  // namespace rangewerks::hosts::workbook
