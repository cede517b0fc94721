// A control's looks, whether it is active or not. Private to this folder.
#pragma once

#include <oleidl.h>

#include "com/control/control_parts.h"

namespace rangewerks::com {

class ViewObject final : public Face<IViewObject2> {
 public:
  using Continue = BOOL(STDMETHODCALLTYPE*)(ULONG_PTR);

  explicit ViewObject(ControlParts& parts) : Face(parts.whole), parts_(parts) {}

  HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* aspectData,
                                 DVTARGETDEVICE* targetDevice, HDC deviceOfTarget, HDC device,
                                 LPCRECTL place, LPCRECTL wholeWindow, Continue goOn,
                                 ULONG_PTR goOnWith) noexcept override;
  HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG index, void* aspectData,
                                        DVTARGETDEVICE* targetDevice, HDC deviceOfTarget,
                                        LOGPALETTE** colours) noexcept override;
  HRESULT STDMETHODCALLTYPE Freeze(DWORD aspect, LONG index, void* aspectData,
                                   DWORD* freeze) noexcept override;
  HRESULT STDMETHODCALLTYPE Unfreeze(DWORD freeze) noexcept override;
  HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags,
                                      IAdviseSink* sink) noexcept override;
  HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags,
                                      IAdviseSink** sink) noexcept override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* targetDevice,
                                      SIZEL* size) noexcept override;

 private:
  ControlParts& parts_;
};

}  // namespace rangewerks::com
