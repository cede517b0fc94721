#include "com/bridge/failures.h"

#include <array>
#include <exception>
#include <new>
#include <string>

#include "com/bridge/owners.h"
#include "com/bridge/text.h"

namespace rangewerks::com {
namespace {

constexpr std::uint32_t kRunTimeErrors = 0x800A0000U;

struct Meaning {
  HRESULT result;
  std::int32_t number;
};

// The run-time errors that callers know these results by.
constexpr std::array kMeanings{
    Meaning{E_INVALIDARG, 5},
    Meaning{DISP_E_OVERFLOW, 6},
    Meaning{E_OUTOFMEMORY, 7},
    Meaning{DISP_E_BADINDEX, 9},
    Meaning{DISP_E_ARRAYISLOCKED, 10},
    Meaning{DISP_E_DIVBYZERO, 11},
    Meaning{DISP_E_TYPEMISMATCH, 13},
    Meaning{E_NOINTERFACE, 430},
    Meaning{REGDB_E_CLASSNOTREG, 429},
    Meaning{CO_E_CLASSSTRING, 429},
    Meaning{DISP_E_MEMBERNOTFOUND, 438},
    Meaning{DISP_E_UNKNOWNNAME, 438},
    Meaning{E_NOTIMPL, 445},
    Meaning{DISP_E_NONAMEDARGS, 446},
    Meaning{DISP_E_PARAMNOTFOUND, 448},
    Meaning{DISP_E_PARAMNOTOPTIONAL, 449},
    Meaning{DISP_E_BADPARAMCOUNT, 450},
    Meaning{static_cast<HRESULT>(0x800706BAU), 462},  // the server's process is gone
    Meaning{static_cast<HRESULT>(0x80010108U), 462},  // the object has left its clients
};

std::string TakeText(BSTR& text) {
  std::string result = FromBstr(text);
  SysFreeString(text);
  text = nullptr;
  return result;
}

std::string SystemText(HRESULT result) {
  std::array<wchar_t, 512> buffer{};
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                      nullptr, static_cast<DWORD>(result), 0, buffer.data(),
                                      static_cast<DWORD>(buffer.size()), nullptr);
  std::string text = FromWide({buffer.data(), length});
  while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == ' ')) {
    text.pop_back();
  }
  return text;
}

/// Words for a failure that came without any.
std::string TextOf(HRESULT result, std::int32_t number) {
  if (number > 0) return automation::StandardText(number);
  std::string text = SystemText(result);
  return text.empty() ? automation::StandardText(number) : text;
}

Error CurrentFailure() noexcept {
  try {
    throw;
  } catch (const Error& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return Error(automation::ErrorNumber::OutOfMemory);
  } catch (const std::exception& error) {
    return {static_cast<std::int32_t>(E_FAIL), {}, error.what()};
  } catch (...) {
    return {static_cast<std::int32_t>(E_FAIL), {}, "Unexpected failure"};
  }
}

}  // namespace

HRESULT ResultOf(std::int32_t number) {
  if (number < 0) return static_cast<HRESULT>(number);
  const bool isRunTimeError = number >= 1 && number <= 0xFFFF;
  return static_cast<HRESULT>(kRunTimeErrors +
                              (isRunTimeError ? static_cast<std::uint32_t>(number) : 5U));
}

std::int32_t NumberOf(HRESULT result) {
  const auto bits = static_cast<std::uint32_t>(result);
  if ((bits & 0xFFFF0000U) == kRunTimeErrors) return static_cast<std::int32_t>(bits & 0xFFFFU);
  for (const Meaning& meaning : kMeanings) {
    if (meaning.result == result) return meaning.number;
  }
  return static_cast<std::int32_t>(result);
}

Error FailureOf(HRESULT result, EXCEPINFO& exception) {
  if (result != DISP_E_EXCEPTION) return FailureOf(result);
  if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
  std::string source = TakeText(exception.bstrSource);
  std::string description = TakeText(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
  exception.bstrHelpFile = nullptr;
  // Some servers leave both codes empty; that they failed is all there is to tell then.
  const HRESULT code = FAILED(exception.scode) ? exception.scode : DISP_E_EXCEPTION;
  const std::int32_t number = exception.wCode != 0 ? exception.wCode : NumberOf(code);
  if (description.empty()) description = TextOf(code, number);
  return {number, std::move(source), std::move(description)};
}

Error FailureOf(HRESULT result) {
  const std::int32_t number = NumberOf(result);
  return {number, {}, TextOf(result, number)};
}

HRESULT DescribeCurrentException(EXCEPINFO* exception) noexcept {
  const Error error = CurrentFailure();
  if (exception != nullptr) {
    *exception = EXCEPINFO{};
    exception->scode = ResultOf(error.Number());
    try {
      exception->bstrSource = ToBstr(error.Source());
      exception->bstrDescription = ToBstr(error.Description());
    } catch (const std::bad_alloc&) {
      exception->scode = E_OUTOFMEMORY;
    }
  }
  return DISP_E_EXCEPTION;
}

HRESULT ReportCurrentException() noexcept {
  const Error error = CurrentFailure();
  Pointer<ICreateErrorInfo> description;
  if (SUCCEEDED(CreateErrorInfo(description.Receive()))) {
    try {
      description->SetSource(const_cast<wchar_t*>(ToWide(error.Source()).c_str()));
      description->SetDescription(const_cast<wchar_t*>(ToWide(error.Description()).c_str()));
      if (const auto info = description.TryQuery<IErrorInfo>()) SetErrorInfo(0, info.Get());
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    }
  }
  return ResultOf(error.Number());
}

}  // namespace rangewerks::com
