// The entry points of an in-process server, which each DLL's .def file exports.
#include <windows.h>

#include <algorithm>

#include "com/bridge/failures.h"
#include "com/bridge/owners.h"
#include "com/module/module.h"
#include "com/server/class_factory.h"
#include "com/server/registration.h"
#include "com/server/server.h"

namespace rangewerks::com {
namespace {

void PrepareOnce(const Server& server) {
  [[maybe_unused]] static const bool prepared = [&server] {
    if (server.prepare != nullptr) server.prepare();
    return true;
  }();
}

HRESULT GetClassObject(REFCLSID classId, REFIID iid, void** result) {
  const Server& server = TheServer();
  const auto served = std::ranges::find_if(
      server.classes, [&](const ServedClass& one) { return one.id == classId; });
  if (served == server.classes.end()) return CLASS_E_CLASSNOTAVAILABLE;
  PrepareOnce(server);
  return Pointer<ClassFactory>::Adopt(new ClassFactory(*served))->QueryInterface(iid, result);
}

}  // namespace
}  // namespace rangewerks::com

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) rangewerks::com::SetModuleInstance(instance);
  return TRUE;
}

HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID classId, REFIID iid, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  try {
    return rangewerks::com::GetClassObject(classId, iid, result);
  } catch (...) {
    return rangewerks::com::ReportCurrentException();
  }
}

HRESULT STDAPICALLTYPE DllCanUnloadNow() { return rangewerks::com::ModuleInUse() ? S_FALSE : S_OK; }

HRESULT STDAPICALLTYPE DllRegisterServer() {
  try {
    return rangewerks::com::Register(rangewerks::com::TheServer());
  } catch (...) {
    return rangewerks::com::ReportCurrentException();
  }
}

HRESULT STDAPICALLTYPE DllUnregisterServer() {
  try {
    return rangewerks::com::Unregister(rangewerks::com::TheServer());
  } catch (...) {
    return rangewerks::com::ReportCurrentException();
  }
}

}  // extern "C"
