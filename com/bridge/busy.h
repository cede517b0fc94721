// A spreadsheet program rejects calls while the person is editing a cell or has a dialog open. Such
// calls are made again, with growing pauses, until a bound is reached.
#pragma once

#include <windows.h>

#include <functional>

namespace rangewerks::com {

/// Whether a call failed only because its server was busy: RPC_E_CALL_REJECTED,
/// RPC_E_SERVERCALL_RETRYLATER and 0x800AC472. 0x800A03EC is none of them: it is also what Excel
/// answers to anything that it refuses for good.
bool IsBusy(HRESULT result);

/// How long a busy server is asked, in seconds: the value HostBusySeconds of
/// HKEY_CURRENT_USER\Software\Ostrel\SheetConnectors\Settings as text or number, 0 (never ask
/// again) to 600; 30 without one.
double PatienceInSeconds();

/// Makes a call again for as long as it answers that the server is busy and the patience lasts;
/// `answer` is what it answered first. Returns the last answer.
HRESULT AskAgain(const std::function<HRESULT()>& call, HRESULT answer);

/// Makes a call, and makes it again for as long as it answers that the server is busy and the
/// patience lasts. Returns the last answer. Between the calls the thread sleeps, 10 milliseconds at
/// first and at most 500, and serves the COM calls that come in.
template <class Call>
HRESULT AskPatiently(const Call& call) {
  const HRESULT answer = call();
  return IsBusy(answer) ? AskAgain(call, answer) : answer;
}

}  // namespace rangewerks::com
