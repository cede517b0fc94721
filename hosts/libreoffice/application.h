// The late-bound Application: the office itself.
#pragma once

#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {

class Application final : public OfficeObject<> {
 public:
  explicit Application(SessionPointer session) : OfficeObject(std::move(session)) {}
  static std::shared_ptr<Application> Of(const SessionPointer& session);
  const MemberTable& Members() const override;
  const SessionPointer& OfSession() const noexcept { return Office(); }

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
  Variant GetCommandBars(const Variant& index) const;
  Variant GetShortcutMenus(std::int32_t index) const;
  Variant Intersect(const Variant& first, const Variant& second) const;
};

}  // namespace rangewerks::hosts::libreoffice
