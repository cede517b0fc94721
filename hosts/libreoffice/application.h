// The late-bound Application: the office itself.
#pragma once

#include "hosts/libreoffice/office_object.h"
#include "hosts/objects/application.h"

namespace rangewerks::hosts::libreoffice {

class Application final : public OfficeObject<objects::Application> {
 public:
  explicit Application(SessionPointer session) : OfficeObject(std::move(session)) {}
  static std::shared_ptr<Application> Of(const SessionPointer& session);

  const SessionPointer& OfSession() const noexcept { return Office(); }

 protected:
  Variant GetName() const override { return "LibreOffice"; }
  Variant GetVersion() const override;
  std::shared_ptr<objects::Collection> Workbooks() const override;
  std::shared_ptr<objects::Collection> Names() const override;
  std::shared_ptr<objects::Collection> Sheets() const override;
  std::shared_ptr<objects::HostObject> ActiveWorkbook() const override;
  std::shared_ptr<objects::Worksheet> ActiveSheet() const override;
  Variant GetSelection() const override;
  Variant GetInternational(const Variant& index) const override;
  std::shared_ptr<objects::Collection> CommandBars() const override;
  std::shared_ptr<objects::HostObject> MenuOfCells() const override;
};

}  // namespace rangewerks::hosts::libreoffice
