// The library's one exception: a failure as an automation caller sees it.
//
//   throw Error(ErrorNumber::TypeMismatch);                   // number with its standard text
//   throw Error(0x80040000, "ValidRangeForBrowse", "...");    // everything given
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace rangewerks::automation {

/// Run-time error numbers with a fixed meaning. Each has a standard text (StandardText).
enum class ErrorNumber : std::int32_t {
  InvalidProcedureCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  FileNotFound = 53,
  ObjectVariableNotSet = 91,
  InvalidUseOfNull = 94,
  ObjectRequired = 424,
  CannotCreateObject = 429,
  MemberNotFound = 438,
  NamedArgumentNotFound = 448,
  ArgumentNotOptional = 449,
  WrongNumberOfArguments = 450,
  NotACollection = 451,
  KeyAlreadyExists = 457,
  NoSuchEvents = 459,
  ApplicationDefined = 1004,
};

/// The base of the numbers that a component defines for itself: 0x80040000 as a signed number.
inline constexpr std::int32_t kApplicationErrorBase = static_cast<std::int32_t>(0x80040000U);

/// The standard description of a run-time error; for a number without one, that of
/// "Application-defined or object-defined error".
const char* StandardText(std::int32_t number);

/// A failure: a number, the places that it came through, and words for a person.
///
/// The source may hold several lines, separated by CR LF: the place of the failure first, then each
/// caller that passed it on. It is empty when nobody has named a place yet.
class Error : public std::exception {
 public:
  explicit Error(ErrorNumber number);
  Error(ErrorNumber number, std::string description);
  Error(std::int32_t number, std::string source, std::string description);

  std::int32_t Number() const noexcept { return number_; }
  const std::string& Source() const noexcept { return source_; }
  const std::string& Description() const noexcept { return description_; }
  bool Is(ErrorNumber number) const noexcept {
    return number_ == static_cast<std::int32_t>(number);
  }

  /// The description.
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  std::int32_t number_;
  std::string source_;
  std::string description_;
};

}  // namespace rangewerks::automation
