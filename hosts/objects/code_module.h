// The late-bound CodeModule: the lines of one macro module.
#pragma once

#include <functional>

#include "hosts/common/code_text.h"
#include "hosts/objects/host_object.h"

namespace rangewerks::hosts::objects {

/// Lines that aren't there are refused with error 9, a procedure that isn't with 35.
class CodeModule : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  virtual Variant GetName() const = 0;
  /// Hands out the code, once.
  virtual void Look(const std::function<void(const CodeText&)>& look) const = 0;
  /// Hands out the code to be changed, once, and keeps what became of it.
  virtual void Change(const std::function<void(CodeText&)>& change) = 0;

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

  /// What `read` makes of the code.
  Variant Ask(const std::function<Variant(const CodeText&)>& read) const;
};

}  // namespace rangewerks::hosts::objects
