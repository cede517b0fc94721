// The late-bound Application of a workbook in memory.
#pragma once

#include "hosts/objects/application.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Application final : public ModelObject<objects::Application> {
 public:
  explicit Application(SessionPointer session) : ModelObject(std::move(session)) {}
  /// The one object of that session.
  static std::shared_ptr<Application> Of(const SessionPointer& session);

  /// Those of every host, and Testing.
  const MemberTable& Members() const override;

 protected:
  /// Passes Testing by the call log: to look at it must not change it.
  void Note(const Invocation& call) override;

  Variant GetName() const override { return "Workbook in memory"; }
  Variant GetVersion() const override { return Shared()->version; }
  std::shared_ptr<objects::Collection> Workbooks() const override;
  std::shared_ptr<objects::Collection> Names() const override;
  std::shared_ptr<objects::Collection> Sheets() const override;
  std::shared_ptr<objects::HostObject> ActiveWorkbook() const override;
  std::shared_ptr<objects::Worksheet> ActiveSheet() const override;
  Variant GetSelection() const override;
  Variant GetInternational(const Variant& index) const override;
  std::shared_ptr<objects::Collection> CommandBars() const override;
  std::shared_ptr<objects::HostObject> MenuOfCells() const override;

 private:
  Variant GetTesting() const;

  /// Raises 1004 when no workbook is open.
  Book& ActiveBook() const;
};

}  // namespace rangewerks::hosts::workbook
