#include "com/control/view_object.h"

#include "com/control/control_picture.h"

namespace rangewerks::com {

HRESULT ViewObject::Draw(DWORD aspect, LONG /*index*/, void* /*aspectData*/,
                         DVTARGETDEVICE* /*targetDevice*/, HDC /*deviceOfTarget*/, HDC device,
                         LPCRECTL place, LPCRECTL /*wholeWindow*/, Continue /*goOn*/,
                         ULONG_PTR /*goOnWith*/) noexcept {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (place == nullptr) return E_INVALIDARG;
  return Guarded([&] {
    const RECT bounds{place->left, place->top, place->right, place->bottom};
    DrawWindow(parts_.form.Window(), device, bounds);
    return S_OK;
  });
}

HRESULT ViewObject::GetColorSet(DWORD /*aspect*/, LONG /*index*/, void* /*aspectData*/,
                                DVTARGETDEVICE* /*targetDevice*/, HDC /*deviceOfTarget*/,
                                LOGPALETTE** colours) noexcept {
  if (colours == nullptr) return E_POINTER;
  *colours = nullptr;
  return S_FALSE;  // any colours
}

HRESULT ViewObject::Freeze(DWORD /*aspect*/, LONG /*index*/, void* /*aspectData*/,
                           DWORD* freeze) noexcept {
  if (freeze != nullptr) *freeze = 0;
  return E_NOTIMPL;
}

HRESULT ViewObject::Unfreeze(DWORD /*freeze*/) noexcept { return E_NOTIMPL; }

HRESULT ViewObject::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept {
  parts_.view = {Pointer(sink), aspects, flags};
  if (sink != nullptr && (flags & ADVF_PRIMEFIRST) != 0) parts_.ViewChanged();
  return S_OK;
}

HRESULT ViewObject::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept {
  if (aspects != nullptr) *aspects = parts_.view.aspects;
  if (flags != nullptr) *flags = parts_.view.flags;
  if (sink != nullptr) *sink = Pointer(parts_.view.sink).Detach();
  return S_OK;
}

HRESULT ViewObject::GetExtent(DWORD aspect, LONG /*index*/, DVTARGETDEVICE* /*targetDevice*/,
                              SIZEL* size) noexcept {
  if (size == nullptr) return E_POINTER;
  *size = {};
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  *size = parts_.extent;
  return S_OK;
}

}  // namespace rangewerks::com
