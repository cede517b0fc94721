// The late-bound CodeModule of a workbook in memory.
#pragma once

#include "hosts/objects/code_module.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class CodeModule final : public ModelObject<objects::CodeModule> {
 public:
  CodeModule(SessionPointer session, MacroModulePointer module)
      : ModelObject(std::move(session)), module_(std::move(module)) {}

 protected:
  void RequireAlive() const override;
  Variant GetName() const override { return module_->name; }
  void Look(const std::function<void(const CodeText&)>& look) const override;
  void Change(const std::function<void(CodeText&)>& change) override;

 private:
  MacroModulePointer module_;
};

}  // namespace rangewerks::hosts::workbook
