#include "hosts/libreoffice/code_module.h"

namespace rangewerks::hosts::libreoffice {

const MemberTable& CodeModule::Members() const {
  static const MemberTable table =
      MemberTable::For<CodeModule>("CodeModule")
          .Get(0, "Name", &CodeModule::GetName, "The module's name.")
          .Get(1, "CountOfLines", &CodeModule::GetCountOfLines, "Number of lines.")
          .Get(2, "Lines", &CodeModule::GetLines, {"StartLine", "Count"},
               "Some lines, with CR LF between them.")
          .Get(3, "ProcStartLine", &CodeModule::GetProcStartLine, {"ProcName", "ProcKind"},
               "The first line of a procedure, or of the comments and blank lines above it.")
          .Get(4, "ProcCountLines", &CodeModule::GetProcCountLines, {"ProcName", "ProcKind"},
               "The number of lines of a procedure from there on.")
          .Get(5, "ProcBodyLine", &CodeModule::GetProcBodyLine, {"ProcName", "ProcKind"},
               "The line with a procedure's name.")
          .Method(6, "InsertLines", &CodeModule::InsertLines, {"Line", "String"},
                  "Puts lines ahead of a line, or behind the last one.")
          .Method(7, "DeleteLines", &CodeModule::DeleteLines,
                  {"StartLine", {"Count", std::int32_t{1}}}, "Takes lines out.")
          .Method(8, "ReplaceLine", &CodeModule::ReplaceLine, {"Line", "String"},
                  "Puts lines in the place of a line.")
          .Method(9, "Find", &CodeModule::Find,
                  {"Target",
                   "StartLine",
                   "StartColumn",
                   "EndLine",
                   "EndColumn",
                   {"WholeWord", false},
                   {"MatchCase", false},
                   {"PatternSearch", false}},
                  "Looks for a text within lines, and writes the place of a hit to its arguments.");
  return table;
}

CodeText CodeModule::Code() const {
  const MacroProject project = Project();
  return project.CodeOf(RequiredModule(project, name_));
}

template <class Change>
void CodeModule::ChangeCode(const Change& change) {
  MacroProject project = Project();
  const Module module = RequiredModule(project, name_);
  CodeText code = project.CodeOf(module);
  change(code);
  project.PutCode(module, code);
}

Variant CodeModule::GetName() const { return RequiredModule(Project(), name_).name; }
Variant CodeModule::GetCountOfLines() const { return Code().CountOfLines(); }
Variant CodeModule::GetLines(std::int32_t start, std::int32_t count) const {
  return Code().Lines(start, count);
}
Variant CodeModule::GetProcStartLine(const std::string& name, std::int32_t kind) const {
  return Code().ProcStartLine(name, kind);
}
Variant CodeModule::GetProcCountLines(const std::string& name, std::int32_t kind) const {
  return Code().ProcCountLines(name, kind);
}
Variant CodeModule::GetProcBodyLine(const std::string& name, std::int32_t kind) const {
  return Code().ProcBodyLine(name, kind);
}

void CodeModule::InsertLines(std::int32_t line, const std::string& text) {
  ChangeCode([&](CodeText& code) { code.InsertLines(line, text); });
}
void CodeModule::DeleteLines(std::int32_t start, std::int32_t count) {
  ChangeCode([&](CodeText& code) { code.DeleteLines(start, count); });
}
void CodeModule::ReplaceLine(std::int32_t line, const std::string& text) {
  ChangeCode([&](CodeText& code) { code.ReplaceLine(line, text); });
}

bool CodeModule::Find(const std::string& target, std::int32_t& startLine, std::int32_t& startColumn,
                      std::int32_t& endLine, std::int32_t& endColumn, bool wholeWord,
                      bool matchCase, bool patternSearch) const {
  CodePart part{startLine, startColumn, endLine, endColumn};
  if (!Code().Find(target, part, {wholeWord, matchCase, patternSearch})) return false;
  startLine = part.startLine;
  startColumn = part.startColumn;
  endLine = part.endLine;
  endColumn = part.endColumn;
  return true;
}

}  // namespace rangewerks::hosts::libreoffice
