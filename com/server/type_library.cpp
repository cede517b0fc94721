#include "com/server/type_library.h"

#include <windows.h>

#include "com/bridge/failures.h"
#include "com/module/module.h"

namespace rangewerks::com {

std::wstring ModuleFile() {
  std::wstring file(MAX_PATH, L'\0');
  while (true) {
    const DWORD length =
        GetModuleFileNameW(ModuleInstance(), file.data(), static_cast<DWORD>(file.size()));
    if (length == 0) throw FailureOf(HRESULT_FROM_WIN32(GetLastError()));
    if (length < file.size()) {
      file.resize(length);
      return file;
    }
    file.resize(file.size() * 2);  // cut short
  }
}

Pointer<ITypeLib> ModuleTypeLibrary() {
  Pointer<ITypeLib> library;
  Require(LoadTypeLibEx(ModuleFile().c_str(), REGKIND_NONE, library.Receive()));
  return library;
}

}  // namespace rangewerks::com
