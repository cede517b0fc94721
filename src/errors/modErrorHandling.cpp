#include "errors/modErrorHandling.h"

#include "automation/text.h"

namespace rangewerks::modErrorHandling {
namespace {

ErrorState& SavedError() {
  static ErrorState saved;
  return saved;
}

}  // namespace

ErrorState& CurrentError() {
  static ErrorState current;
  return current;
}

void SaveError() { SavedError() = CurrentError(); }

void RestoreError() {
  const ErrorState& saved = SavedError();
  ErrorState& current = CurrentError();
  current.number = saved.number;
  current.source = saved.source;
  current.description = saved.description;
}

std::string BuildErrorSource(std::string_view sProcedure) {
  const std::string& source = CurrentError().source;
  if (automation::IsBlank(source)) return std::string(sProcedure);
  return source + "\r\n" + std::string(sProcedure);
}

void RaiseError(std::string_view sProcedure) {
  const std::int32_t line = SavedError().line;
  const std::string prefix = line != 0 ? "Line No.: " + std::to_string(line) + " " : "";
  RestoreError();
  ErrorState& current = CurrentError();
  // What is raised is the current error from now on, for a caller outside who has it shown.
  current.source = prefix + BuildErrorSource(sProcedure);
  throw automation::Error(current.number, current.source, current.description);
}

}  // namespace rangewerks::modErrorHandling
