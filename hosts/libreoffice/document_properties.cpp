#include "hosts/libreoffice/document_properties.h"

#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::hosts::libreoffice {

std::shared_ptr<automation::Dispatch> DocumentProperties::Find(const std::string& name) const {
  auto known = UserProperties(*book_).Find(name);
  return known ? std::make_shared<DocumentProperty>(Office(), book_, std::move(*known)) : nullptr;
}

objects::Slot DocumentProperties::At(std::int32_t position) const {
  return objects::SlotIn(UserProperties(*book_).Names(), position, [this](const std::string& name) {
    return std::make_shared<DocumentProperty>(Office(), book_, name);
  });
}

automation::ErrorNumber DocumentProperties::Missing() const {
  return automation::ErrorNumber::ApplicationDefined;
}

Variant DocumentProperties::GetCount() const {
  return static_cast<std::int32_t>(UserProperties(*book_).Names().size());
}

Variant DocumentProperties::AddProperty(const std::string& name, std::int32_t type,
                                        const Variant& value) {
  UserProperties(*book_).Add(name, type, value);
  return std::make_shared<DocumentProperty>(Office(), book_, name);
}

std::unique_ptr<Enumerator> DocumentProperties::Walk() {
  return objects::WalkThrough(UserProperties(*book_).Names(), [this](const std::string& name) {
    return std::make_shared<DocumentProperty>(Office(), book_, name);
  });
}

Variant DocumentProperties::GetParent() const { return Workbook::Of(Office(), book_); }
Variant DocumentProperties::GetApplication() const { return Application::Of(Office()); }

// --- one of them ---------------------------------------------------------------------------------

Variant DocumentProperty::GetType() const {
  return static_cast<std::int32_t>(UserProperties(*book_).TypeOf(name_));
}
Variant DocumentProperty::GetParent() const {
  return std::make_shared<DocumentProperties>(Office(), book_);
}
Variant DocumentProperty::GetApplication() const { return Application::Of(Office()); }

}  // namespace rangewerks::hosts::libreoffice
