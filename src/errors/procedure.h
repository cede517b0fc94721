// A procedure of the library: what fails inside it goes on to its caller with the procedure's text
// and line added to the source.
//
//   std::string Thing::Read(std::int32_t index) {
//     return Procedure("Read of Class Module Thing Line#:", [&](Line& at) {
//       at();
//       const auto cell = sheet_.get_Range(name_).get_Item(index);
//       at();
//       return ToString(cell.get_Value(), Locale::Current());
//     });
//   }
//
// The path that succeeds builds no string and stores nothing but constants that the compiler keeps
// in registers, if at all.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "automation/error.h"

namespace rangewerks {

/// The line that a procedure has reached, counted from its first line; 0 until it is marked.
class Line {
 public:
  explicit constexpr Line(std::int32_t start) : start_(start) {}

  /// Marks the line of this call: a failure from here to the next mark is reported there.
  constexpr void operator()(std::int32_t here = __builtin_LINE()) { line_ = here - start_; }
  constexpr std::int32_t Reached() const { return line_; }

 private:
  std::int32_t start_;
  std::int32_t line_ = 0;
};

/// Raises `error` again with `literal`, the line directly behind it, and `trailing` added to its
/// source.
[[noreturn]] void PassOn(const automation::Error& error, std::string_view literal,
                         std::int32_t line, std::string_view trailing = {});

/// The same with nothing behind the literal; the line still goes in front of the source.
[[noreturn]] void PassOnWithoutLine(const automation::Error& error, std::string_view literal,
                                    std::int32_t line);

/// Runs the body of a procedure and returns what it returns. `literal` is the procedure's fixed
/// text, up to "Line#:". `trailing` gives the text that stands behind the line; it is asked only
/// when something fails.
template <class Body, class Trailing>
auto ProcedureWith(const Trailing& trailing, std::string_view literal, Body&& body,
                   std::int32_t start = __builtin_LINE()) {
  Line line(start);
  try {
    return body(line);
  } catch (const automation::Error& error) {
    PassOn(error, literal, line.Reached(), trailing());
  }
}

/// The same for a procedure whose text has no line behind it.
template <class Body>
auto ProcedureWithoutLine(std::string_view literal, Body&& body,
                          std::int32_t start = __builtin_LINE()) {
  Line line(start);
  try {
    return body(line);
  } catch (const automation::Error& error) {
    PassOnWithoutLine(error, literal, line.Reached());
  }
}

/// The same for a procedure that adds nothing behind its line, as nearly all.
template <class Body>
auto Procedure(std::string_view literal, Body&& body, std::int32_t start = __builtin_LINE()) {
  return ProcedureWith([] { return std::string_view(); }, literal, std::forward<Body>(body), start);
}

}  // namespace rangewerks
