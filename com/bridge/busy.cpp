#include "com/bridge/busy.h"

#include <objbase.h>

#include <algorithm>
#include <array>
#include <cwchar>

namespace rangewerks::com {
namespace {

constexpr auto kRejected = static_cast<HRESULT>(0x80010001U);    // RPC_E_CALL_REJECTED
constexpr auto kRetryLater = static_cast<HRESULT>(0x8001010AU);  // RPC_E_SERVERCALL_RETRYLATER
constexpr auto kIgnored = static_cast<HRESULT>(0x800AC472U);     // VBA_E_IGNORE

constexpr DWORD kFirstPause = 10;  // milliseconds
constexpr DWORD kLongestPause = 500;
constexpr double kPatience = 30;  // seconds
constexpr double kMostPatience = 600;

/// Sleeps without shutting out a server that calls back before it can answer.
void Pause(DWORD milliseconds) {
  HANDLE never = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  if (never == nullptr) return Sleep(milliseconds);
  DWORD which = 0;
  const HRESULT waited = CoWaitForMultipleHandles(0, milliseconds, 1, &never, &which);
  CloseHandle(never);
  if (waited != RPC_S_CALLPENDING) Sleep(milliseconds);  // the thread is in no apartment
}

}  // namespace

bool IsBusy(HRESULT result) {
  return result == kRejected || result == kRetryLater || result == kIgnored;
}

double PatienceInSeconds() {
  constexpr auto kKey = L"Software\\Ostrel\\SheetConnectors\\Settings";
  std::array<wchar_t, 32> text{};
  auto size = static_cast<DWORD>(sizeof(text));
  if (RegGetValueW(HKEY_CURRENT_USER, kKey, L"HostBusySeconds", RRF_RT_REG_SZ, nullptr, text.data(),
                   &size) == ERROR_SUCCESS) {
    wchar_t* end = nullptr;
    const double given = wcstod(text.data(), &end);
    return end == text.data() ? kPatience : std::clamp(given, 0.0, kMostPatience);
  }
  DWORD number = 0;
  size = sizeof(number);
  if (RegGetValueW(HKEY_CURRENT_USER, kKey, L"HostBusySeconds", RRF_RT_REG_DWORD, nullptr, &number,
                   &size) == ERROR_SUCCESS) {
    return std::min<double>(number, kMostPatience);
  }
  return kPatience;
}

HRESULT AskAgain(const std::function<HRESULT()>& call, HRESULT answer) {
  const ULONGLONG start = GetTickCount64();
  const auto patience = static_cast<ULONGLONG>(PatienceInSeconds() * 1000);
  for (DWORD pause = kFirstPause; IsBusy(answer); pause = std::min(pause * 2, kLongestPause)) {
    const ULONGLONG spent = GetTickCount64() - start;
    if (spent >= patience) break;
    Pause(static_cast<DWORD>(std::min<ULONGLONG>(pause, patience - spent)));
    answer = call();
  }
  return answer;
}

}  // namespace rangewerks::com
