// The late-bound custom DocumentProperties of a workbook in memory, and one DocumentProperty of
// them.
#pragma once

#include "hosts/objects/document_properties.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class DocumentProperties final : public ModelObject<objects::DocumentProperties> {
 public:
  DocumentProperties(SessionPointer session, Book* book)
      : ModelObject(std::move(session)), book_(book) {}

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  std::string BookName() const override { return book_->name; }
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override;
  Variant AddProperty(const std::string& name, std::int32_t type, const Variant& value) override;
  Variant GetParent() const override;
  Variant GetApplication() const override;

 private:
  Book* book_;
};

class DocumentProperty final : public ModelObject<objects::DocumentProperty> {
 public:
  DocumentProperty(SessionPointer session, Book* book, DocumentPropertyPointer property)
      : ModelObject(std::move(session)), book_(book), property_(std::move(property)) {}

  void LetValue(const Variant& value) override { PutProperty(*property_, value); }

 protected:
  void RequireAlive() const override;
  Variant GetValue() const override { return property_->value; }
  Variant GetName() const override { return property_->name; }
  Variant GetType() const override { return static_cast<std::int32_t>(property_->type); }
  Variant GetParent() const override;
  Variant GetApplication() const override;
  void Delete() override;

 private:
  Book* book_;
  DocumentPropertyPointer property_;
};

}  // namespace rangewerks::hosts::workbook
