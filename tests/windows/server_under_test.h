// Rangewerks.dll as a client that hasn't linked it sees it.
#pragma once

#include <oaidl.h>
#include <rangewerks.h>
#include <windows.h>

#include "com/bridge/owners.h"

namespace rangewerks::tests {

/// The DLL, loaded from where it was built and kept for the life of the process.
HMODULE ServerModule();
/// A new object of one of its classes through its class object, without the registry.
com::Pointer<IUnknown> CreateFromServer(REFCLSID id);
template <class Interface>
com::Pointer<Interface> CreateFromServer(REFCLSID id) {
  return CreateFromServer(id).TryQuery<Interface>();
}
/// The type library inside the DLL.
com::Pointer<ITypeLib> ServerTypeLibrary();
/// What it says of clsInterfaceRangeList, whose source interface has two events.
com::Pointer<ITypeInfo> RangeListClass();

/// Runs in a single-threaded apartment for as long as it lives.
class Apartment {
 public:
  Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
  ~Apartment() { CoUninitialize(); }
};

}  // namespace rangewerks::tests
