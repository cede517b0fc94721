#include "com/control/ole_object.h"

#include <ole2.h>

#include <cwchar>

namespace rangewerks::com {

const DWORD kControlStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE |
                             OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE |
                             OLEMISC_SETCLIENTSITEFIRST;

OleObject::OleObject(ControlParts& parts, InPlace& inPlace, const StoredProperties& stored)
    : Face(parts.whole), parts_(parts), inPlace_(inPlace), stored_(stored) {}

HRESULT OleObject::SetClientSite(IOleClientSite* site) noexcept {
  return Guarded([&] {
    if (site == nullptr) inPlace_.Deactivate();
    parts_.site = Pointer(site);
    return S_OK;
  });
}

HRESULT OleObject::GetClientSite(IOleClientSite** site) noexcept {
  if (site == nullptr) return E_POINTER;
  *site = Pointer(parts_.site).Detach();
  return S_OK;
}

HRESULT OleObject::SetHostNames(LPCOLESTR /*program*/, LPCOLESTR /*object*/) noexcept {
  return S_OK;  // they would stand in the title of a window of its own
}

HRESULT OleObject::Close(DWORD save) noexcept {
  return Guarded([&] {
    const bool toSave = save != OLECLOSE_NOSAVE && stored_.HasChanged();
    if (toSave && parts_.site) parts_.site->SaveObject();
    inPlace_.Deactivate();
    if (listeners_) listeners_->SendOnClose();
    return S_OK;
  });
}

// A control stands in its container only: there is nothing to link to.
HRESULT OleObject::SetMoniker(DWORD /*which*/, IMoniker* /*moniker*/) noexcept { return E_NOTIMPL; }

HRESULT OleObject::GetMoniker(DWORD /*assign*/, DWORD /*which*/, IMoniker** moniker) noexcept {
  if (moniker == nullptr) return E_POINTER;
  *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT OleObject::InitFromData(IDataObject* /*data*/, BOOL /*creation*/,
                                DWORD /*reserved*/) noexcept {
  return E_NOTIMPL;
}

HRESULT OleObject::GetClipboardData(DWORD /*reserved*/, IDataObject** data) noexcept {
  if (data == nullptr) return E_POINTER;
  *data = nullptr;
  return E_NOTIMPL;
}

HRESULT OleObject::DoVerb(LONG verb, LPMSG /*message*/, IOleClientSite* /*site*/, LONG /*index*/,
                          HWND /*parent*/, LPCRECT /*place*/) noexcept {
  return Guarded([&] {
    switch (verb) {
      case OLEIVERB_PRIMARY:
      case OLEIVERB_UIACTIVATE:
        inPlace_.ActivateUserInterface(InPlace::Focus::Take);
        return S_OK;
      case OLEIVERB_SHOW:
      case OLEIVERB_INPLACEACTIVATE:
        inPlace_.Activate();
        return S_OK;
      case OLEIVERB_HIDE:
        inPlace_.Deactivate();
        return S_OK;
      case OLEIVERB_DISCARDUNDOSTATE:
        return S_OK;  // it keeps none
      default:
        return verb > 0 ? OLEOBJ_S_INVALIDVERB : E_NOTIMPL;
    }
  });
}

HRESULT OleObject::EnumVerbs(IEnumOLEVERB** verbs) noexcept {
  if (verbs == nullptr) return E_POINTER;
  *verbs = nullptr;
  return OLEOBJ_E_NOVERBS;  // none for the person to choose
}

HRESULT OleObject::Update() noexcept { return S_OK; }

HRESULT OleObject::IsUpToDate() noexcept { return S_OK; }

HRESULT OleObject::GetUserClassID(CLSID* id) noexcept {
  if (id == nullptr) return E_POINTER;
  *id = parts_.description.classId;
  return S_OK;
}

HRESULT OleObject::GetUserType(DWORD /*form*/, LPOLESTR* name) noexcept {
  if (name == nullptr) return E_POINTER;
  const std::size_t bytes = (parts_.description.name.size() + 1) * sizeof(wchar_t);
  *name = static_cast<LPOLESTR>(CoTaskMemAlloc(bytes));
  if (*name == nullptr) return E_OUTOFMEMORY;
  std::wmemcpy(*name, parts_.description.name.c_str(), parts_.description.name.size() + 1);
  return S_OK;
}

HRESULT OleObject::SetExtent(DWORD aspect, SIZEL* size) noexcept {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (size == nullptr) return E_POINTER;
  if (size->cx < 0 || size->cy < 0) return E_INVALIDARG;
  return Guarded([&] {
    parts_.extent = *size;
    // An active control is given its place by SetObjectRects.
    if (!inPlace_.IsActive()) parts_.ApplyExtent();
    parts_.ViewChanged();
    return S_OK;
  });
}

HRESULT OleObject::GetExtent(DWORD aspect, SIZEL* size) noexcept {
  if (size == nullptr) return E_POINTER;
  *size = {};
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  *size = parts_.extent;
  return S_OK;
}

HRESULT OleObject::Advise(IAdviseSink* sink, DWORD* connection) noexcept {
  if (connection == nullptr) return E_POINTER;
  *connection = 0;
  if (!listeners_) {
    const HRESULT made = CreateOleAdviseHolder(listeners_.Receive());
    if (FAILED(made)) return made;
  }
  return listeners_->Advise(sink, connection);
}

HRESULT OleObject::Unadvise(DWORD connection) noexcept {
  return listeners_ ? listeners_->Unadvise(connection) : OLE_E_NOCONNECTION;
}

HRESULT OleObject::EnumAdvise(IEnumSTATDATA** connections) noexcept {
  if (connections == nullptr) return E_POINTER;
  *connections = nullptr;
  return listeners_ ? listeners_->EnumAdvise(connections) : S_OK;
}

HRESULT OleObject::GetMiscStatus(DWORD aspect, DWORD* status) noexcept {
  if (status == nullptr) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? kControlStatus : 0;
  return S_OK;
}

HRESULT OleObject::SetColorScheme(LOGPALETTE* /*palette*/) noexcept { return E_NOTIMPL; }

}  // namespace rangewerks::com
