#include "windows/server_under_test.h"

#include <stdexcept>

namespace rangewerks::tests {

HMODULE ServerModule() {
  static const HMODULE module = LoadLibraryW(RANGEWERKS_DLL);
  if (module == nullptr) throw std::runtime_error("Rangewerks.dll can't be loaded");
  return module;
}

com::Pointer<IUnknown> CreateFromServer(REFCLSID id) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto getClassObject = reinterpret_cast<GetClassObject>(
      reinterpret_cast<void*>(GetProcAddress(ServerModule(), "DllGetClassObject")));
  com::Pointer<IClassFactory> factory;
  com::Pointer<IUnknown> object;
  if (FAILED(getClassObject(id, __uuidof(IClassFactory), factory.ReceiveAny())) ||
      FAILED(factory->CreateInstance(nullptr, IID_IUnknown, object.ReceiveAny()))) {
    throw std::runtime_error("Rangewerks.dll doesn't make an object of that class");
  }
  return object;
}

com::Pointer<ITypeLib> ServerTypeLibrary() {
  com::Pointer<ITypeLib> library;
  if (FAILED(LoadTypeLibEx(RANGEWERKS_DLL, REGKIND_NONE, library.Receive()))) {
    throw std::runtime_error("Rangewerks.dll holds no type library");
  }
  return library;
}

com::Pointer<ITypeInfo> RangeListClass() {
  com::Pointer<ITypeInfo> type;
  if (FAILED(ServerTypeLibrary()->GetTypeInfoOfGuid(__uuidof(::clsInterfaceRangeList),
                                                    type.Receive()))) {
    throw std::runtime_error("the type library doesn't describe the range list");
  }
  return type;
}

}  // namespace rangewerks::tests
