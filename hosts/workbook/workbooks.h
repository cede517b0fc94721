// The late-bound Workbooks: the open workbooks.
#pragma once

#include "hosts/objects/workbook.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class Workbooks final : public ModelObject<objects::Workbooks> {
 public:
  explicit Workbooks(SessionPointer session) : ModelObject(std::move(session)) {}

  /// Those of every host, and Open.
  const MemberTable& Members() const override;

 protected:
  std::unique_ptr<Enumerator> Walk() override;
  std::shared_ptr<automation::Dispatch> Find(const std::string& name) const override;
  objects::Slot At(std::int32_t position) const override;
  Variant GetCount() const override;
  Variant GetApplication() const override;
  Variant Add() override;

 private:
  Variant Open(const std::string& path);
};

}  // namespace rangewerks::hosts::workbook
