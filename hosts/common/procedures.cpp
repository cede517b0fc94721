#include "hosts/common/procedures.h"

#include <array>
#include <optional>

#include "automation/text.h"

namespace rangewerks::hosts {
namespace {

using automation::EqualText;

constexpr std::string_view kBlanks = " \t";

/// Takes the next word from the front of a line: what comes up to a blank, a bracket or a mark.
std::string_view TakeWord(std::string_view& line) {
  constexpr std::string_view kEndsOfWords = " \t(:',";
  const std::size_t start = line.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) {
    line = {};
    return {};
  }
  line.remove_prefix(start);
  const std::string_view word = line.substr(0, line.find_first_of(kEndsOfWords));
  line.remove_prefix(word.size());
  return word;
}

bool IsOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
  for (const std::string_view each : words) {
    if (EqualText(word, each)) return true;
  }
  return false;
}

bool IsBlankOrComment(std::string_view line) {
  const std::size_t start = line.find_first_not_of(kBlanks);
  if (start == std::string_view::npos || line[start] == '\'') return true;
  return EqualText(TakeWord(line), "Rem");
}

/// Functions may carry a character behind their name that tells their type.
std::string_view WithoutTypeCharacter(std::string_view name) {
  const bool typed = !name.empty() && std::string_view("$%&!#@").find(name.back()) != name.npos;
  return typed ? name.substr(0, name.size() - 1) : name;
}

struct Declaration {
  std::string_view name;
  std::string_view keyword;  ///< of its "End" line
  ProcedureKind kind;
};

std::optional<ProcedureKind> KindOfProperty(std::string_view word) {
  if (EqualText(word, "Let")) return ProcedureKind::Let;
  if (EqualText(word, "Set")) return ProcedureKind::Set;
  if (EqualText(word, "Get")) return ProcedureKind::Get;
  return std::nullopt;
}

std::optional<Declaration> DeclarationOn(std::string_view line) {
  std::string_view word = TakeWord(line);
  while (IsOneOf(word, {"Public", "Private", "Friend", "Static"})) word = TakeWord(line);
  std::optional<ProcedureKind> kind;
  if (IsOneOf(word, {"Sub", "Function"})) kind = ProcedureKind::Ordinary;
  if (EqualText(word, "Property")) kind = KindOfProperty(TakeWord(line));
  if (!kind) return std::nullopt;
  const std::string_view name = WithoutTypeCharacter(TakeWord(line));
  if (name.empty()) return std::nullopt;
  return Declaration{name, word, *kind};
}

bool Ends(std::string_view line, std::string_view keyword) {
  return EqualText(TakeWord(line), "End") && EqualText(TakeWord(line), keyword);
}

/// Whether a line goes on in the next one.
bool IsContinued(std::string_view line) {
  const std::size_t last = line.find_last_not_of(kBlanks);
  if (last == std::string_view::npos || line[last] != '_') return false;
  return last == 0 || kBlanks.find(line[last - 1]) != std::string_view::npos;
}

/// The lines with each that goes on made whole; what continues it is a bare comment or statement.
std::vector<std::string> Whole(std::span<const std::string> lines) {
  std::vector<std::string> whole(lines.begin(), lines.end());
  for (std::size_t i = 0; i < lines.size();) {
    std::size_t behind = i + 1;
    for (; IsContinued(lines[behind - 1]) && behind < lines.size(); ++behind) {
      whole[i].resize(whole[i].find_last_of('_'));
      whole[i] += lines[behind];
    }
    const char* const rest = IsBlankOrComment(whole[i]) ? "'" : ":";
    while (++i < behind) whole[i] = rest;
  }
  return whole;
}

/// Whether a declaration has its "End" behind it on the same line, parted by ":".
bool EndsAtOnce(std::string_view line, std::string_view keyword) {
  bool isText = false;
  for (std::size_t i = 0; i < line.size() && (isText || line[i] != '\''); ++i) {
    if (line[i] == '"') isText = !isText;
    if (line[i] == ':' && !isText && Ends(line.substr(i + 1), keyword)) return true;
  }
  return false;
}

/// The first line behind everything above `declaration` that is no comment.
std::size_t BehindDeclarations(std::span<const std::string> lines, std::size_t declaration) {
  while (declaration > 0 && IsBlankOrComment(lines[declaration - 1])) --declaration;
  return declaration;
}

/// The line behind the procedure: behind its "End" line, or where the next one is declared if that
/// is missing.
std::size_t BehindProcedure(std::span<const std::string> lines, std::size_t declaration,
                            std::string_view keyword) {
  if (EndsAtOnce(lines[declaration], keyword)) return declaration + 1;
  for (std::size_t i = declaration + 1; i < lines.size(); ++i) {
    if (Ends(lines[i], keyword)) return i + 1;
    if (DeclarationOn(lines[i])) return i;
  }
  return lines.size();
}

}  // namespace

std::vector<ProcedureLines> FindProcedures(std::span<const std::string> physical) {
  const std::vector<std::string> lines = Whole(physical);
  std::vector<ProcedureLines> found;
  std::size_t start = 0;
  for (std::size_t i = 0; i < lines.size();) {
    const auto declaration = DeclarationOn(lines[i]);
    if (!declaration) {
      ++i;
      continue;
    }
    if (found.empty()) start = BehindDeclarations(lines, i);
    const std::size_t behind = BehindProcedure(lines, i, declaration->keyword);
    found.push_back({std::string(declaration->name), declaration->kind,
                     static_cast<std::int32_t>(start) + 1, static_cast<std::int32_t>(i) + 1,
                     static_cast<std::int32_t>(behind - start)});
    start = i = behind;
  }
  if (!found.empty()) {
    found.back().count = static_cast<std::int32_t>(lines.size()) - found.back().start + 1;
  }
  return found;
}

}  // namespace rangewerks::hosts
