#include "errors/procedure.h"

#include <string>

#include "errors/modErrorHandling.h"

namespace rangewerks {

void PassOn(const automation::Error& error, std::string_view literal, std::int32_t line,
            std::string_view trailing) {
  modErrorHandling::CurrentError() = {error.Number(), error.Source(), error.Description(), line};
  modErrorHandling::SaveError();
  modErrorHandling::RaiseError(std::string(literal) + std::to_string(line) + std::string(trailing));
}

}  // namespace rangewerks
