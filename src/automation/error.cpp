#include "automation/error.h"

#include <utility>

namespace rangewerks::automation {

const char* StandardText(std::int32_t number) {
  switch (static_cast<ErrorNumber>(number)) {
    case ErrorNumber::InvalidProcedureCall:
      return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
      return "Overflow";
    case ErrorNumber::OutOfMemory:
      return "Out of memory";
    case ErrorNumber::SubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::DivisionByZero:
      return "Division by zero";
    case ErrorNumber::TypeMismatch:
      return "Type mismatch";
    case ErrorNumber::FileNotFound:
      return "File not found";
    case ErrorNumber::ObjectVariableNotSet:
      return "Object variable or With block variable not set";
    case ErrorNumber::InvalidUseOfNull:
      return "Invalid use of Null";
    case ErrorNumber::ObjectRequired:
      return "Object required";
    case ErrorNumber::CannotCreateObject:
      return "ActiveX component can't create object";
    case ErrorNumber::MemberNotFound:
      return "Object doesn't support this property or method";
    case ErrorNumber::NamedArgumentNotFound:
      return "Named argument not found";
    case ErrorNumber::ArgumentNotOptional:
      return "Argument not optional";
    case ErrorNumber::WrongNumberOfArguments:
      return "Wrong number of arguments or invalid property assignment";
    case ErrorNumber::NotACollection:
      return "Object not a collection";
    case ErrorNumber::KeyAlreadyExists:
      return "This key is already associated with an element of this collection";
    case ErrorNumber::NoSuchEvents:
      return "Object or class does not support the set of events";
    case ErrorNumber::ApplicationDefined:
      break;
  }
  return "Application-defined or object-defined error";
}

Error::Error(ErrorNumber number) : Error(number, StandardText(static_cast<std::int32_t>(number))) {}

Error::Error(ErrorNumber number, std::string description)
    : Error(static_cast<std::int32_t>(number), {}, std::move(description)) {}

Error::Error(std::int32_t number, std::string source, std::string description)
    : number_(number), source_(std::move(source)), description_(std::move(description)) {}

}  // namespace rangewerks::automation
