// The lines of a macro module, with the operations that the object model has on them.
//
//   CodeText code("Option Explicit");
//   code.InsertLines(code.CountOfLines() + 1, "\rSub Run()\rEnd Sub");
//   code.DeleteLines(code.ProcStartLine("Run", 0), code.ProcCountLines("Run", 0));
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace rangewerks::hosts {

/// A part of the code: from one place up to another, which isn't in it. Lines and columns are
/// counted from 1, columns in characters; -1 at the end stands for the end of the module and of
/// the line.
struct CodePart {
  std::int32_t startLine = 1;
  std::int32_t startColumn = 1;
  std::int32_t endLine = -1;
  std::int32_t endColumn = -1;
};

/// How a text is looked for.
struct CodeSearch {
  bool wholeWord = false;
  bool matchCase = false;
  bool patternSearch = false;  ///< refused: patterns aren't known here
};

/// Lines are counted from 1. A line or a count that isn't there raises 9.
class CodeText {
 public:
  CodeText() = default;
  /// Lines end with CR, LF or both; an empty text has none.
  explicit CodeText(std::string_view text);

  const std::vector<std::string>& lines() const noexcept { return lines_; }
  /// The lines with LF between them.
  std::string Text() const;

  std::int32_t CountOfLines() const noexcept { return static_cast<std::int32_t>(lines_.size()); }
  /// The lines with CR LF between them.
  std::string Lines(std::int32_t start, std::int32_t count) const;
  /// Inserts before that line; the count of lines plus one appends. The text is taken apart as by
  /// the constructor, but an empty one is one empty line.
  void InsertLines(std::int32_t line, std::string_view text);
  void DeleteLines(std::int32_t start, std::int32_t count);
  void ReplaceLine(std::int32_t line, std::string_view text);
  /// Looks for a text that lies within one line and within `part`. True when found; `part` is then
  /// where it lies, otherwise it stays. Raises 5 for a pattern search.
  bool Find(std::string_view target, CodePart& part, CodeSearch how = {}) const;
  /// Where a procedure begins, and how many lines it has, the blank lines and comments above it
  /// counted (procedures.h). The kind is 0 for an ordinary procedure, 1 to 3 for a property's Let,
  /// Set and Get. Raises 35 when there is no such procedure.
  std::int32_t ProcStartLine(std::string_view name, std::int32_t kind) const;
  std::int32_t ProcCountLines(std::string_view name, std::int32_t kind) const;
  /// The line with the procedure's name. Raises 35 likewise.
  std::int32_t ProcBodyLine(std::string_view name, std::int32_t kind) const;

 private:
  void RequireLines(std::int32_t start, std::int32_t count) const;

  std::vector<std::string> lines_;
};

}  // namespace rangewerks::hosts
