#include "hosts/common/code_text.h"

#include <algorithm>
#include <optional>

#include "automation/error.h"
#include "automation/text.h"
#include "hosts/common/procedures.h"

namespace rangewerks::hosts {
namespace {

using automation::Error;
using automation::ErrorNumber;

std::vector<std::string> TakenApart(std::string_view text) {
  std::vector<std::string> lines;
  for (;;) {
    const std::size_t end = text.find_first_of("\r\n");
    lines.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return lines;
    text.remove_prefix(text.substr(end).starts_with("\r\n") ? end + 2 : end + 1);
  }
}

std::string Joined(std::vector<std::string>::const_iterator line,
                   std::vector<std::string>::const_iterator end, std::string_view between) {
  std::string text;
  for (bool first = true; line != end; ++line, first = false) {
    if (!first) text += between;
    text += *line;
  }
  return text;
}

bool IsWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool IsWholeWord(std::string_view line, std::size_t start, std::size_t length) {
  const bool before = start > 0 && IsWordCharacter(line[start - 1]);
  const std::size_t end = start + length;
  const bool after = end < line.size() && IsWordCharacter(line[end]);
  return !before && !after;
}

/// The columns of the first hit that lies between two columns; `last` is -1 for the end. Line and
/// target are folded already where case doesn't matter, which changes no count of characters.
std::optional<std::pair<std::int32_t, std::int32_t>> FindInLine(std::string_view line,
                                                                std::string_view target,
                                                                std::int32_t first,
                                                                std::int32_t last, bool wholeWord) {
  const auto width = static_cast<std::int32_t>(automation::Length(target));
  for (std::size_t at = line.find(target); at != std::string_view::npos;
       at = line.find(target, at + 1)) {
    const auto column = static_cast<std::int32_t>(automation::Length(line.substr(0, at))) + 1;
    if (last != -1 && column + width > last) return std::nullopt;
    if (column < first || (wholeWord && !IsWholeWord(line, at, target.size()))) continue;
    return std::pair{column, column + width};
  }
  return std::nullopt;
}

ProcedureLines Required(const std::vector<std::string>& lines, std::string_view name,
                        std::int32_t kind) {
  for (ProcedureLines& each : FindProcedures(lines)) {
    if (static_cast<std::int32_t>(each.kind) == kind && automation::EqualText(each.name, name)) {
      return std::move(each);
    }
  }
  constexpr std::int32_t kSubNotDefined = 35;
  throw Error(kSubNotDefined, {}, "Sub or Function not defined");
}

}  // namespace

CodeText::CodeText(std::string_view text) {
  if (!text.empty()) lines_ = TakenApart(text);
}

std::string CodeText::Text() const { return Joined(lines_.begin(), lines_.end(), "\n"); }

void CodeText::RequireLines(std::int32_t start, std::int32_t count) const {
  const bool there =
      start >= 1 && start <= CountOfLines() && count >= 0 && count <= CountOfLines() - start + 1;
  if (!there) throw Error(ErrorNumber::SubscriptOutOfRange);
}

std::string CodeText::Lines(std::int32_t start, std::int32_t count) const {
  RequireLines(start, count);
  const auto first = lines_.begin() + (start - 1);
  return Joined(first, first + count, "\r\n");
}

void CodeText::InsertLines(std::int32_t line, std::string_view text) {
  if (line < 1 || line > CountOfLines() + 1) throw Error(ErrorNumber::SubscriptOutOfRange);
  const std::vector<std::string> inserted = TakenApart(text);
  lines_.insert(lines_.begin() + (line - 1), inserted.begin(), inserted.end());
}

void CodeText::DeleteLines(std::int32_t start, std::int32_t count) {
  RequireLines(start, count);
  const auto first = lines_.begin() + (start - 1);
  lines_.erase(first, first + count);
}

void CodeText::ReplaceLine(std::int32_t line, std::string_view text) {
  RequireLines(line, 1);
  DeleteLines(line, 1);
  InsertLines(line, text);
}

bool CodeText::Find(std::string_view target, CodePart& part, CodeSearch how) const {
  if (how.patternSearch) {
    throw Error(ErrorNumber::InvalidProcedureCall, "Code can't be searched for a pattern");
  }
  if (target.empty()) return false;
  const auto folded = [&](std::string_view text) {
    return how.matchCase ? std::string(text) : automation::FoldCase(text);
  };
  const std::string wanted = folded(target);
  const std::int32_t lastLine =
      part.endLine == -1 ? CountOfLines() : std::min(part.endLine, CountOfLines());
  for (std::int32_t line = std::max(part.startLine, 1); line <= lastLine; ++line) {
    const auto hit = FindInLine(folded(lines_[static_cast<std::size_t>(line) - 1]), wanted,
                                line == part.startLine ? part.startColumn : 1,
                                line == part.endLine ? part.endColumn : -1, how.wholeWord);
    if (!hit) continue;
    part = {line, hit->first, line, hit->second};
    return true;
  }
  return false;
}

std::int32_t CodeText::ProcStartLine(std::string_view name, std::int32_t kind) const {
  return Required(lines_, name, kind).start;
}

std::int32_t CodeText::ProcCountLines(std::string_view name, std::int32_t kind) const {
  return Required(lines_, name, kind).count;
}

std::int32_t CodeText::ProcBodyLine(std::string_view name, std::int32_t kind) const {
  return Required(lines_, name, kind).declaration;
}

}  // namespace rangewerks::hosts
