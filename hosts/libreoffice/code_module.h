// The late-bound CodeModule of the office.
#pragma once

#include "hosts/libreoffice/vb_project.h"
#include "hosts/objects/code_module.h"

namespace rangewerks::hosts::libreoffice {

/// Each call reads the module from the office, and writes a changed one back whole.
class CodeModule final : public MacroObject<objects::CodeModule> {
 public:
  CodeModule(SessionPointer session, BookPointer book, std::string name)
      : MacroObject(std::move(session), std::move(book)), name_(std::move(name)) {}

 protected:
  Variant GetName() const override { return RequiredModule(Project(), name_).name; }
  void Look(const std::function<void(const CodeText&)>& look) const override;
  void Change(const std::function<void(CodeText&)>& change) override;

 private:
  std::string name_;
};

}  // namespace rangewerks::hosts::libreoffice
