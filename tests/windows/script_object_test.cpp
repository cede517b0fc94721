// A class of a script whose names only IDispatchEx knows.
#include <dispex.h>
#include <gtest/gtest.h>

#include <string>

#include "automation/dispatch.h"
#include "automation/error.h"
#include "com/bridge/objects.h"
#include "com/bridge/values.h"
#include "hosts/late_calls.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

/// Has one property, "Total", and answers nothing through IDispatch.
class ScriptObject final : public IDispatchEx {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    const bool known = IsEqualIID(iid, IID_IUnknown) != 0 ||
                       IsEqualIID(iid, __uuidof(IDispatch)) != 0 ||
                       (isExtended && IsEqualIID(iid, __uuidof(IDispatchEx)) != 0);
    *object = known ? static_cast<IDispatchEx*>(this) : nullptr;
    return known ? S_OK : E_NOINTERFACE;  // lives on the test's stack
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 1; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*i*/, LCID /*l*/, ITypeInfo** t) noexcept override {
    *t = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*r*/, LPOLESTR* /*n*/, UINT /*c*/, LCID /*l*/,
                                          DISPID* /*ids*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID /*id*/, REFIID /*r*/, LCID /*l*/, WORD /*flags*/,
                                   DISPPARAMS* /*p*/, VARIANT* /*result*/, EXCEPINFO* /*e*/,
                                   UINT* /*bad*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDispID(BSTR name, DWORD flags, DISPID* id) noexcept override {
    const bool found = flags == fdexNameCaseInsensitive && std::wstring(name) == L"Total";
    *id = found ? 3 : DISPID_UNKNOWN;
    return found ? S_OK : DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE InvokeEx(DISPID id, LCID /*l*/, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* /*e*/,
                                     IServiceProvider* /*caller*/) noexcept override {
    if (id != 3) return DISP_E_MEMBERNOTFOUND;
    if ((flags & DISPATCH_PROPERTYPUT) != 0) {
      total = V_R8(&parameters->rgvarg[0]);
    } else {
      V_VT(result) = VT_R8;
      V_R8(result) = total;
    }
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR /*name*/, DWORD /*f*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID /*id*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID /*id*/, DWORD /*f*/,
                                                DWORD* /*p*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetMemberName(DISPID /*id*/, BSTR* /*name*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD /*f*/, DISPID /*id*/,
                                          DISPID* /*next*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown** /*parent*/) noexcept override {
    return E_NOTIMPL;
  }

  double total = 12.5;
  bool isExtended = true;
};

TEST(ScriptObject, IsCalledThroughItsExtendedInterface) {
  ScriptObject script;
  const Object object = com::FromUnknown(&script);
  EXPECT_EQ(Get(object, "Total"), Variant(12.5));
  Let(object, "Total", 3.5);
  EXPECT_EQ(script.total, 3.5);
  EXPECT_EQ(ErrorNumberOf([&] { Get(object, "Sum"); }), 438);
}

TEST(ScriptObject, WithoutOneItsFailureStays) {
  ScriptObject script;
  script.isExtended = false;
  const Object object = com::FromUnknown(&script);
  EXPECT_EQ(ErrorNumberOf([&] { Get(object, "Total"); }), 445);
}

}  // namespace
}  // namespace rangewerks::tests
