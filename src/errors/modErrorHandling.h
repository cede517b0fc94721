// The path that every failure takes out of the library: each procedure that it passes adds its name
// and line to the error's source text.
//
// Procedures don't call these routines themselves; Procedure (errors/procedure.h) does. All of this
// runs on the one thread of the host's user interface.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/error.h"

namespace rangewerks::modErrorHandling {

/// An error together with the line inside the procedure where it arrived.
struct ErrorState {
  std::int32_t number = 0;
  std::string source;       ///< may hold several lines, separated by CR LF
  std::string description;  ///< words for a person
  std::int32_t line = 0;    ///< 0 when the procedure has no line number at that point
};

/// The error that is being handled. A handler sets it before it calls the routines below.
ErrorState& CurrentError();

/// Copies the current error to the one saved slot; what was saved before is lost.
void SaveError();

/// Writes the saved number, source and description back to the current error, the line not.
void RestoreError();

/// The current error's source with a line added: the source, CR LF and `sProcedure`, or
/// `sProcedure` alone when the source is blank.
std::string BuildErrorSource(std::string_view sProcedure);

/// Restores the saved error and raises it with `sProcedure` added to its source. When a line was
/// saved, "Line No.: ", the line and a blank go in front of the whole source, at every level once
/// more.
[[noreturn]] void RaiseError(std::string_view sProcedure);

}  // namespace rangewerks::modErrorHandling
