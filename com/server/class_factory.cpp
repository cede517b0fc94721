#include "com/server/class_factory.h"

#include "com/bridge/failures.h"
#include "com/bridge/objects.h"

namespace rangewerks::com {

HRESULT ClassFactory::QueryInterface(REFIID iid, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
  AddRef();
  *result = static_cast<IClassFactory*>(this);
  return S_OK;
}

ULONG ClassFactory::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  try {
    return ToDispatch(served_.create())->QueryInterface(iid, result);
  } catch (...) {
    return ReportCurrentException();
  }
}

HRESULT ClassFactory::LockServer(BOOL lock) {
  if (lock != FALSE) {
    LockModule();
  } else {
    UnlockModule();
  }
  return S_OK;
}

}  // namespace rangewerks::com
