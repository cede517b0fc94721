// The base of small objects with one interface: what is asked of every COM object.
//
//   class Walk final : public Counted<IEnumVARIANT> { ... };
//   return Pointer<IEnumVARIANT>::Adopt(new Walk(...));
#pragma once

#include <windows.h>

#include <atomic>

#include "com/module/module.h"

namespace rangewerks::com {

/// Counts its references, of which its maker has the first, and goes with the last. Keeps the
/// module loaded.
template <class Interface>
class Counted : public Interface {
 public:
  Counted() = default;
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept final {
    if (object == nullptr) return E_POINTER;
    const bool known = IsEqualIID(iid, IID_IUnknown) != 0 ||
                       IsEqualIID(iid, __uuidof(Interface)) != 0 || AnswersTo(iid);
    *object = known ? static_cast<Interface*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept final { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() noexcept final {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  virtual ~Counted() = default;

 private:
  /// Whether the interface goes by another identifier too.
  virtual bool AnswersTo(REFIID /*iid*/) const noexcept { return false; }

  ModuleLock lock_;
  std::atomic<ULONG> references_ = 1;
};

}  // namespace rangewerks::com
