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
  const ErrorState& current = CurrentError();
  throw automation::Error(current.number, prefix + BuildErrorSource(sProcedure),
                          current.description);
}

}  // namespace rangewerks::modErrorHandling
