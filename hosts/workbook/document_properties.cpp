#include "hosts/workbook/document_properties.h"

#include "hosts/workbook/application.h"
#include "hosts/workbook/workbook.h"

namespace rangewerks::hosts::workbook {

std::shared_ptr<automation::Dispatch> DocumentProperties::Find(const std::string& name) const {
  auto property = FindProperty(book_->properties, name);
  return property ? std::make_shared<DocumentProperty>(Shared(), book_, std::move(property))
                  : nullptr;
}

objects::Slot DocumentProperties::At(std::int32_t position) const {
  return objects::SlotIn(book_->properties, position,
                         [this](const DocumentPropertyPointer& property) {
                           return std::make_shared<DocumentProperty>(Shared(), book_, property);
                         });
}

Variant DocumentProperties::GetCount() const {
  return static_cast<std::int32_t>(book_->properties.size());
}

Variant DocumentProperties::AddProperty(const std::string& name, std::int32_t type,
                                        const Variant& value) {
  return std::make_shared<DocumentProperty>(
      Shared(), book_, workbook::AddProperty(book_->properties, name, type, value));
}

std::unique_ptr<Enumerator> DocumentProperties::Walk() {
  return objects::WalkThrough(book_->properties, [this](const DocumentPropertyPointer& property) {
    return std::make_shared<DocumentProperty>(Shared(), book_, property);
  });
}

Variant DocumentProperties::GetParent() const { return Workbook::Of(Shared(), book_); }
Variant DocumentProperties::GetApplication() const { return Application::Of(Shared()); }

// --- one of them ---------------------------------------------------------------------------------

void DocumentProperty::RequireAlive() const {
  if (property_->deleted) {
    Refuse("The document property \"" + property_->name + "\" has been deleted");
  }
}

Variant DocumentProperty::GetParent() const {
  return std::make_shared<DocumentProperties>(Shared(), book_);
}
Variant DocumentProperty::GetApplication() const { return Application::Of(Shared()); }

void DocumentProperty::Delete() {
  std::erase(book_->properties, property_);
  property_->deleted = true;
}

}  // namespace rangewerks::hosts::workbook
