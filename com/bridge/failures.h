// Failures between the library's Error and COM's results and error objects. Inside, functions
// throw; at the edge, and only there, an HRESULT is returned with an error object beside it.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include "automation/error.h"

namespace rangewerks::com {

using automation::Error;

/// A run-time error n from 1 to 65535 is 0x800A0000 + n, a number that is a failing HRESULT is
/// itself. What can't be one, such as 0, becomes run-time error 5: a caller must see a failure.
HRESULT ResultOf(std::int32_t number);
/// The number of a failing HRESULT: n for 0x800A0000 + n, the run-time error that means the same
/// (438 for an unknown member, 13 for a type mismatch), or the HRESULT itself.
std::int32_t NumberOf(HRESULT result);

/// The failure of a call through IDispatch: what `exception` tells for DISP_E_EXCEPTION, the
/// result with its standard words otherwise. Takes the texts out of `exception` and frees them.
Error FailureOf(HRESULT result, EXCEPINFO& exception);
/// The failure of any other call, with the system's words for it.
Error FailureOf(HRESULT result);

/// Describes the exception being handled in an EXCEPINFO; returns DISP_E_EXCEPTION.
HRESULT DescribeCurrentException(EXCEPINFO* exception) noexcept;
/// Leaves the exception being handled behind as the thread's error object; returns its result.
HRESULT ReportCurrentException() noexcept;

/// Raises the failure of an HRESULT that isn't a success.
inline void Require(HRESULT result) {
  if (FAILED(result)) throw FailureOf(result);
}

}  // namespace rangewerks::com
