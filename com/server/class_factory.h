// The class object of a served class.
#pragma once

#include <unknwn.h>
#include <windows.h>

#include <atomic>

#include "com/module/module.h"
#include "com/server/server.h"

namespace rangewerks::com {

/// Makes objects of one class; refuses to make them part of another object. Made with new; the last
/// Release deletes it.
class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(const ServedClass& served) : served_(served) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** result) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
  ~ClassFactory() = default;

  const ServedClass& served_;
  std::atomic<ULONG> references_ = 0;
  ModuleLock keepsModule_;
};

}  // namespace rangewerks::com
