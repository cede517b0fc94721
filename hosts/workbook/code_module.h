// The late-bound CodeModule: the code of one module.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

/// Lines that aren't there are refused with error 9, a procedure that isn't with 35.
class CodeModule final : public ModelObject<> {
 public:
  CodeModule(SessionPointer session, MacroModulePointer module);
  const MemberTable& Members() const override;

 protected:
  void RequireAlive() const override;

 private:
  Variant GetCountOfLines() const;
  Variant GetLines(std::int32_t start, std::int32_t count) const;
  Variant GetProcStartLine(const std::string& name, std::int32_t kind) const;
  Variant GetProcCountLines(const std::string& name, std::int32_t kind) const;
  Variant GetProcBodyLine(const std::string& name, std::int32_t kind) const;
  void InsertLines(std::int32_t line, const std::string& text);
  void DeleteLines(std::int32_t start, std::int32_t count);
  void ReplaceLine(std::int32_t line, const std::string& text);
  bool Find(const std::string& target, std::int32_t& startLine, std::int32_t& startColumn,
            std::int32_t& endLine, std::int32_t& endColumn, bool wholeWord, bool matchCase,
            bool patternSearch) const;

  /// Carries `step` out; what it raises becomes the host's, with the module and its size.
  template <class Step>
  auto InModule(const Step& step) const;

  MacroModulePointer module_;
};

}  // namespace rangewerks::hosts::workbook
