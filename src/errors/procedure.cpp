#include "errors/procedure.h"

#include <string>

#include "errors/modErrorHandling.h"

namespace rangewerks {

void PassOn(const automation::Error& error, std::string_view literal, std::int32_t line,
            std::string_view trailing) {
  PassOnWithoutLine(error, std::string(literal) + std::to_string(line) + std::string(trailing),
                    line);
}

void PassOnWithoutLine(const automation::Error& error, std::string_view literal,
                       std::int32_t line) {
  modErrorHandling::CurrentError() = {error.Number(), error.Source(), error.Description(), line};
  modErrorHandling::SaveError();
  modErrorHandling::RaiseError(literal);
}

}  // namespace rangewerks
