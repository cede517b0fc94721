#include "errors/report.h"

#include "errors/modErrorHandling.h"

namespace rangewerks {

void ShowFailure(ErrorMessageBox& box, const automation::Error& error, std::string_view literal,
                 std::int32_t line) {
  modErrorHandling::CurrentError() = {error.Number(), error.Source(), error.Description(), line};
  box.DisplayErrMessage(std::string(literal) + std::to_string(line));
}

}  // namespace rangewerks
