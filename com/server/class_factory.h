// The class object of a served class.
#pragma once

#include <unknwn.h>
#include <windows.h>

#include "com/bridge/counted.h"
#include "com/server/server.h"

namespace rangewerks::com {

/// Makes objects of one class; refuses to make them part of another object.
class ClassFactory final : public Counted<IClassFactory> {
 public:
  explicit ClassFactory(const ServedClass& served) : served_(served) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid,
                                           void** result) noexcept override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

 private:
  const ServedClass& served_;
};

}  // namespace rangewerks::com
