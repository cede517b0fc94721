// The end of the error path inside the library: an event handler of a form has nobody above it, so
// what fails in it is shown to the person.
//
//   void frmThing::Form_Load() {
//     ReportFailures(*box_, "Form_Load of Form frmThing Line#:", [&](Line& at) {
//       at();
//       grdThings.set_Array(things_);
//     });
//   }
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "errors/ErrorMessageBox.h"
#include "errors/procedure.h"

namespace rangewerks {

/// Shows `error` in `box`, its source followed by `literal` and the line directly behind it.
void ShowFailure(ErrorMessageBox& box, const automation::Error& error, std::string_view literal,
                 std::int32_t line);

/// Runs the body of an event handler; what fails in it is shown and goes no further. What fails in
/// the showing does. `literal` is the handler's fixed text, up to "Line#:".
template <class Body>
void ReportFailures(ErrorMessageBox& box, std::string_view literal, Body&& body,
                    std::int32_t start = __builtin_LINE()) {
  Line line(start);
  try {
    body(line);
  } catch (const automation::Error& error) {
    ShowFailure(box, error, literal, line.Reached());
  }
}

}  // namespace rangewerks
