// Functions of the user interface that older editions of Windows lack. Private to this folder's
// sources.
#pragma once

#include <windows.h>

namespace rangewerks::desktops {

/// Null where Windows has no such function.
template <class Function>
Function UserFunction(const char* name) {
  const HMODULE user = GetModuleHandleW(L"user32.dll");
  // Through a plain address: the two kinds of function are told to be unlike.
  return user == nullptr
             ? nullptr
             : reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(user, name)));
}

}  // namespace rangewerks::desktops
