#include "hosts/libreoffice/cell_errors.h"

#include "platform/excel_constants.h"

namespace rangewerks::hosts::libreoffice {
namespace {

/// The office's codes, as its interfaces report them.
enum OfficeError : std::int32_t {
  kIllegalCharacter = 501,
  kIllegalNumber = 503,
  kPairExpected = 508,
  kOperatorExpected = 509,
  kVariableExpected = 510,
  kParameterExpected = 511,
  kNoCode = 521,
  kNoConvergence = 523,
  kNoReference = 524,
  kNoName = 525,
  kUnknownToken = 520,
  kUnknownStackVariable = 518,
  kDivisionByZero = 532,
  kNotAvailable = 32767,
};

}  // namespace

automation::ErrorValue ErrorOfCode(std::int32_t code) {
  using automation::ErrorValue;
  switch (code) {
    case kDivisionByZero:
      return ErrorValue::FromNumber(excel::xlErrDiv0);
    case kNotAvailable:
      return ErrorValue::FromNumber(excel::xlErrNA);
    case kNoName:
      return ErrorValue::FromNumber(excel::xlErrName);
    case kNoReference:
      return ErrorValue::FromNumber(excel::xlErrRef);
    case kIllegalNumber:
    case kNoConvergence:
      return ErrorValue::FromNumber(excel::xlErrNum);
    case kNoCode:
      return ErrorValue::FromNumber(excel::xlErrNull);
    default:
      return ErrorValue::FromNumber(excel::xlErrValue);
  }
}

bool IsSyntaxError(std::int32_t code) {
  switch (code) {
    case kIllegalCharacter:
    case kPairExpected:
    case kOperatorExpected:
    case kVariableExpected:
    case kParameterExpected:
    case kUnknownToken:
    case kUnknownStackVariable:
      return true;
    default:
      return false;
  }
}

}  // namespace rangewerks::hosts::libreoffice
