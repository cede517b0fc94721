// An automation object of somebody else's: what it is asked is written down, and what it answers is
// given beforehand.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <atomic>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "com/bridge/owners.h"
#include "com/bridge/text.h"
#include "com/bridge/values.h"

namespace rangewerks::tests {

/// Counts its references in `alive`, which must outlive it. Names are known as `members` says, and
/// each call is answered by `answer`.
class FakeObject final : public IDispatch {
 public:
  using Answer = std::function<HRESULT(DISPID id, WORD flags, DISPPARAMS& parameters,
                                       VARIANT* result, EXCEPINFO* exception)>;

  std::map<std::wstring, DISPID> members;
  Answer answer;
  int namesAsked = 0;
  com::Pointer<ITypeInfo> type;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    const bool known =
        IsEqualIID(iid, IID_IUnknown) != 0 || IsEqualIID(iid, __uuidof(IDispatch)) != 0;
    *object = known ? static_cast<IDispatch*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --references;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    *count = type ? 1 : 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*i*/, LCID /*l*/,
                                        ITypeInfo** information) noexcept override {
    *information = com::Pointer(type).Detach();
    return type ? S_OK : E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*r*/, LPOLESTR* names, UINT count, LCID /*l*/,
                                          DISPID* ids) noexcept override {
    ++namesAsked;
    HRESULT result = S_OK;
    for (UINT i = 0; i < count; ++i) {
      const auto found = members.find(names[i]);
      ids[i] = found == members.end() ? DISPID_UNKNOWN : found->second;
      if (found == members.end()) result = DISP_E_UNKNOWNNAME;
    }
    return result;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID /*r*/, LCID /*l*/, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* /*bad*/) noexcept override {
    return answer(id, flags, *parameters, result, exception);
  }

  std::atomic<ULONG> references = 1;
};

inline com::Pointer<FakeObject> NewFake(std::map<std::wstring, DISPID> members,
                                        FakeObject::Answer answer) {
  auto fake = com::Pointer<FakeObject>::Adopt(new FakeObject);
  fake->members = std::move(members);
  fake->answer = std::move(answer);
  return fake;
}

}  // namespace rangewerks::tests
