// Callers learn an object's type name from its type information only, so an object that no type
// library describes needs one with its name in it.
#include <new>

#include "com/bridge/counted.h"
#include "com/bridge/text.h"
#include "com/bridge/type_information.h"

namespace rangewerks::com {
namespace {

class NameOnly final : public Counted<ITypeInfo> {
 public:
  explicit NameOnly(const std::string& name) : name_(name) {}

  HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID member, BSTR* name, BSTR* help,
                                             DWORD* helpContext, BSTR* helpFile) noexcept override {
    if (member != MEMBERID_NIL) return TYPE_E_ELEMENTNOTFOUND;
    if (name != nullptr) *name = SysAllocString(name_.Get());
    if (help != nullptr) *help = nullptr;
    if (helpContext != nullptr) *helpContext = 0;
    if (helpFile != nullptr) *helpFile = nullptr;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** attributes) noexcept override {
    if (attributes == nullptr) return E_POINTER;
    *attributes = new (std::nothrow) TYPEATTR{};
    if (*attributes == nullptr) return E_OUTOFMEMORY;
    (*attributes)->typekind = TKIND_DISPATCH;
    return S_OK;
  }
  void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR* attributes) noexcept override {
    delete attributes;
  }

  // There is nothing else to tell.
  HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp** /*comp*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT /*index*/, FUNCDESC** /*f*/) noexcept override {
    return TYPE_E_ELEMENTNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE GetVarDesc(UINT /*index*/, VARDESC** /*v*/) noexcept override {
    return TYPE_E_ELEMENTNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE GetNames(MEMBERID /*member*/, BSTR* /*names*/, UINT /*most*/,
                                     UINT* count) noexcept override {
    if (count != nullptr) *count = 0;
    return TYPE_E_ELEMENTNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT /*i*/, HREFTYPE* /*type*/) noexcept override {
    return TYPE_E_ELEMENTNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT /*i*/, INT* /*flags*/) noexcept override {
    return TYPE_E_ELEMENTNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR* /*names*/, UINT /*count*/,
                                          MEMBERID* /*members*/) noexcept override {
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(PVOID /*instance*/, MEMBERID /*member*/, WORD /*flags*/,
                                   DISPPARAMS* /*parameters*/, VARIANT* /*result*/,
                                   EXCEPINFO* /*exception*/, UINT* /*bad*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID /*member*/, INVOKEKIND /*kind*/, BSTR* /*dll*/,
                                        BSTR* /*name*/, WORD* /*ordinal*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE /*type*/,
                                           ITypeInfo** /*info*/) noexcept override {
    return TYPE_E_ELEMENTNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID /*member*/, INVOKEKIND /*kind*/,
                                            PVOID* /*address*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* /*outer*/, REFIID /*iid*/,
                                           PVOID* /*object*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetMops(MEMBERID /*member*/, BSTR* /*mops*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib** /*library*/,
                                                 UINT* /*index*/) noexcept override {
    return E_NOTIMPL;
  }
  void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC* /*f*/) noexcept override {}
  void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC* /*v*/) noexcept override {}

 private:
  Bstr name_;
};

}  // namespace

Pointer<ITypeInfo> NamedType(const std::string& name) {
  return Pointer<ITypeInfo>::Adopt(new NameOnly(name));
}

}  // namespace rangewerks::com
