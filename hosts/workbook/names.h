// The late-bound Names: the names of a workbook, or of one of its sheets.
#pragma once

#include "hosts/objects/name.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Names final : public ModelObject<objects::Names> {
 public:
  Names(SessionPointer session, Book* book, SheetPointer sheet = nullptr)
      : ModelObject(std::move(session)), book_(book), sheet_(std::move(sheet)) {}

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  void RequireAlive() const override;
  std::string BookName() const override { return book_->name; }
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override;
  Variant Add(const std::string& name, const Variant& refersTo) override;
  Variant GetParent() const override;
  Variant GetApplication() const override;

 private:
  std::vector<NamePointer> All() const;

  Book* book_;
  SheetPointer sheet_;
};

}  // namespace rangewerks::hosts::workbook
