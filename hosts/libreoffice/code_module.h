// The late-bound CodeModule: the lines of one macro module.
#pragma once

#include "hosts/libreoffice/vb_project.h"

namespace rangewerks::hosts::libreoffice {

/// Each call reads the module from the office, and writes a changed one back whole.
class CodeModule final : public MacroObject {
 public:
  CodeModule(SessionPointer session, BookPointer book, std::string name)
      : MacroObject(std::move(session), std::move(book)), name_(std::move(name)) {}
  const MemberTable& Members() const override;

 private:
  Variant GetName() const;
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

  CodeText Code() const;
  template <class Change>
  void ChangeCode(const Change& change);

  std::string name_;
};

}  // namespace rangewerks::hosts::libreoffice
