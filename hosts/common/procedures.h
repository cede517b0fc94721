// Finding the procedures in the lines of a macro module.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace rangewerks::hosts {

/// What a procedure is, with the numbers that callers of the object model give.
enum class ProcedureKind : std::int32_t { Ordinary = 0, Let = 1, Set = 2, Get = 3 };

/// One procedure; lines are counted from 1.
struct ProcedureLines {
  std::string name;
  ProcedureKind kind;
  std::int32_t start;        ///< the first line that is counted to it
  std::int32_t declaration;  ///< the line with its name
  std::int32_t count;        ///< from `start`
};

/// The procedures in their order, told by the first words of lines, whatever their case; a line
/// that ends with " _" goes on in the next. A procedure begins behind the one before it, the first
/// one behind the last declaration, so that the blank lines and comments above it are its own; it
/// ends with its "End" line, the last one with the module.
std::vector<ProcedureLines> FindProcedures(std::span<const std::string> lines);

}  // namespace rangewerks::hosts
