// What a container asks of any embedded object. Private to this folder.
#pragma once

#include "com/control/control_parts.h"
#include "com/control/in_place.h"
#include "com/control/stored_properties.h"

namespace rangewerks::com {

class OleObject final : public Face<IOleObject> {
 public:
  OleObject(ControlParts& parts, InPlace& inPlace, const StoredProperties& stored);

  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) noexcept override;
  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) noexcept override;
  HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR program, LPCOLESTR object) noexcept override;
  HRESULT STDMETHODCALLTYPE Close(DWORD save) noexcept override;
  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD which, IMoniker* moniker) noexcept override;
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which,
                                       IMoniker** moniker) noexcept override;
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* data, BOOL creation,
                                         DWORD reserved) noexcept override;
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD reserved, IDataObject** data) noexcept override;
  HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index,
                                   HWND parent, LPCRECT place) noexcept override;
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) noexcept override;
  HRESULT STDMETHODCALLTYPE Update() noexcept override;
  HRESULT STDMETHODCALLTYPE IsUpToDate() noexcept override;
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* id) noexcept override;
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* name) noexcept override;
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* size) noexcept override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* size) noexcept override;
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* connection) noexcept override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD connection) noexcept override;
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** connections) noexcept override;
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) noexcept override;
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* palette) noexcept override;

 private:
  ControlParts& parts_;
  InPlace& inPlace_;
  const StoredProperties& stored_;
  Pointer<IOleAdviseHolder> listeners_;
};

}  // namespace rangewerks::com
