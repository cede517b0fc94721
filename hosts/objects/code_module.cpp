#include "hosts/objects/code_module.h"

namespace rangewerks::hosts::objects {

const MemberTable& CodeModule::Members() const {
  static const MemberTable table =
      MemberTable::For<CodeModule>("CodeModule")
          .Get(1, "CountOfLines", &CodeModule::GetCountOfLines, "Number of lines.")
          .Get(2, "Lines", &CodeModule::GetLines, {"StartLine", "Count"},
               "Some lines, with CR LF between them.")
          .Get(3, "ProcStartLine", &CodeModule::GetProcStartLine, {"ProcName", "ProcKind"},
               "The first line of a procedure, or of the comments and blank lines above it.")
          .Get(4, "ProcCountLines", &CodeModule::GetProcCountLines, {"ProcName", "ProcKind"},
               "The number of lines of a procedure from there on.")
          .Method(5, "InsertLines", &CodeModule::InsertLines, {"Line", "String"},
                  "Puts lines ahead of a line, or behind the last one.")
          .Method(6, "DeleteLines", &CodeModule::DeleteLines,
                  {"StartLine", {"Count", std::int32_t{1}}}, "Takes lines out.")
          .Method(7, "Find", &CodeModule::Find,
                  {"Target",
                   "StartLine",
                   "StartColumn",
                   "EndLine",
                   "EndColumn",
                   {"WholeWord", false},
                   {"MatchCase", false},
                   {"PatternSearch", false}},
                  "Looks for a text within lines, and writes the place of a hit to its arguments.")
          .Get(8, "ProcBodyLine", &CodeModule::GetProcBodyLine, {"ProcName", "ProcKind"},
               "The line with a procedure's name.")
          .Method(9, "ReplaceLine", &CodeModule::ReplaceLine, {"Line", "String"},
                  "Puts a text in the place of a line.")
          .Get(0, "Name", &CodeModule::GetName, "The module's name.");
  return table;
}

Variant CodeModule::Ask(const std::function<Variant(const CodeText&)>& read) const {
  Variant answer;
  Look([&](const CodeText& code) { answer = read(code); });
  return answer;
}

Variant CodeModule::GetCountOfLines() const {
  return Ask([](const CodeText& code) { return code.CountOfLines(); });
}
Variant CodeModule::GetLines(std::int32_t start, std::int32_t count) const {
  return Ask([&](const CodeText& code) { return code.Lines(start, count); });
}
Variant CodeModule::GetProcStartLine(const std::string& name, std::int32_t kind) const {
  return Ask([&](const CodeText& code) { return code.ProcStartLine(name, kind); });
}
Variant CodeModule::GetProcCountLines(const std::string& name, std::int32_t kind) const {
  return Ask([&](const CodeText& code) { return code.ProcCountLines(name, kind); });
}
Variant CodeModule::GetProcBodyLine(const std::string& name, std::int32_t kind) const {
  return Ask([&](const CodeText& code) { return code.ProcBodyLine(name, kind); });
}

void CodeModule::InsertLines(std::int32_t line, const std::string& text) {
  Change([&](CodeText& code) { code.InsertLines(line, text); });
}
void CodeModule::DeleteLines(std::int32_t start, std::int32_t count) {
  Change([&](CodeText& code) { code.DeleteLines(start, count); });
}
void CodeModule::ReplaceLine(std::int32_t line, const std::string& text) {
  Change([&](CodeText& code) { code.ReplaceLine(line, text); });
}

bool CodeModule::Find(const std::string& target, std::int32_t& startLine, std::int32_t& startColumn,
                      std::int32_t& endLine, std::int32_t& endColumn, bool wholeWord,
                      bool matchCase, bool patternSearch) const {
  CodePart part{startLine, startColumn, endLine, endColumn};
  bool found = false;
  Look([&](const CodeText& code) {
    found = code.Find(target, part, {wholeWord, matchCase, patternSearch});
  });
  startLine = part.startLine;
  startColumn = part.startColumn;
  endLine = part.endLine;
  endColumn = part.endColumn;
  return found;
}

}  // namespace rangewerks::hosts::objects
