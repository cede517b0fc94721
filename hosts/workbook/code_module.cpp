#include "hosts/workbook/code_module.h"

#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
CodeModule::CodeModule(SessionPointer session, MacroModulePointer module)
    : ModelObject(std::move(session)), module_(std::move(module)) {}

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
                  "Puts a text in the place of a line.");
  return table;
}

void CodeModule::RequireAlive() const {
  if (module_->removed) Refuse("Module \"" + module_->name + "\" has been removed");
}

template <class Step>
auto CodeModule::InModule(const Step& step) const {
  try {
    return step();
  } catch (const automation::Error& error) {
    throw automation::Error(error.Number(), kSource,
                            "Module \"" + module_->name + "\", which has " +
                                std::to_string(module_->code.CountOfLines()) +
                                " lines: " + error.Description());
  }
}

Variant CodeModule::GetCountOfLines() const { return module_->code.CountOfLines(); }

Variant CodeModule::GetLines(std::int32_t start, std::int32_t count) const {
  return InModule([&] { return module_->code.Lines(start, count); });
}

Variant CodeModule::GetProcStartLine(const std::string& name, std::int32_t kind) const {
  return InModule([&] { return module_->code.ProcStartLine(name, kind); });
}

Variant CodeModule::GetProcCountLines(const std::string& name, std::int32_t kind) const {
  return InModule([&] { return module_->code.ProcCountLines(name, kind); });
}

Variant CodeModule::GetProcBodyLine(const std::string& name, std::int32_t kind) const {
  return InModule([&] { return module_->code.ProcBodyLine(name, kind); });
}

void CodeModule::InsertLines(std::int32_t line, const std::string& text) {
  InModule([&] { module_->code.InsertLines(line, text); });
}

void CodeModule::DeleteLines(std::int32_t start, std::int32_t count) {
  InModule([&] { module_->code.DeleteLines(start, count); });
}

void CodeModule::ReplaceLine(std::int32_t line, const std::string& text) {
  InModule([&] { module_->code.ReplaceLine(line, text); });
}

bool CodeModule::Find(const std::string& target, std::int32_t& startLine, std::int32_t& startColumn,
                      std::int32_t& endLine, std::int32_t& endColumn, bool wholeWord,
                      bool matchCase, bool patternSearch) const {
  CodePart part{startLine, startColumn, endLine, endColumn};
  const bool found = InModule([&] {
    return module_->code.Find(target, part, {wholeWord, matchCase, patternSearch});
  });
  startLine = part.startLine;
  startColumn = part.startColumn;
  endLine = part.endLine;
  endColumn = part.endColumn;
  return found;
}

}  // namespace rangewerks::hosts::workbook
