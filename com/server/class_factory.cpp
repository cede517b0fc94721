#include "com/server/class_factory.h"

#include "com/bridge/failures.h"
#include "com/bridge/objects.h"
#include "com/module/module.h"

namespace rangewerks::com {

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** result) noexcept {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  try {
    return ToDispatch(served_.create())->QueryInterface(iid, result);
  } catch (...) {
    return ReportCurrentException();
  }
}

HRESULT ClassFactory::LockServer(BOOL lock) noexcept {
  if (lock != FALSE) {
    LockModule();
  } else {
    UnlockModule();
  }
  return S_OK;
}

}  // namespace rangewerks::com
