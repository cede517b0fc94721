// What a container asks of a control inside its window, and of one that has the keyboard. Private
// to this folder.
#pragma once

#include <ocidl.h>

#include "com/control/control_parts.h"
#include "com/control/in_place.h"

namespace rangewerks::com {

class InPlaceObject final : public Face<IOleInPlaceObject> {
 public:
  InPlaceObject(ControlParts& parts, InPlace& inPlace)
      : Face(parts.whole), parts_(parts), inPlace_(inPlace) {}

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) noexcept override;
  HRESULT STDMETHODCALLTYPE InPlaceDeactivate() noexcept override;
  HRESULT STDMETHODCALLTYPE UIDeactivate() noexcept override;
  HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT place, LPCRECT clip) noexcept override;
  HRESULT STDMETHODCALLTYPE ReactivateAndUndo() noexcept override;

 private:
  ControlParts& parts_;
  InPlace& inPlace_;
};

class ActiveObject final : public Face<IOleInPlaceActiveObject> {
 public:
  explicit ActiveObject(ControlParts& parts) : Face(parts.whole), parts_(parts) {}
  void Serve(const InPlace& inPlace) { inPlace_ = &inPlace; }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) noexcept override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) noexcept override;
  HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL activate) noexcept override;
  HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL activate) noexcept override;
  HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window,
                                         BOOL isFrame) noexcept override;
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) noexcept override;

 private:
  bool MoveFocus(HWND form, bool back, MSG& message);

  ControlParts& parts_;
  const InPlace* inPlace_ = nullptr;
};

class OleControl final : public Face<IOleControl> {
 public:
  explicit OleControl(ControlParts& parts) : Face(parts.whole) {}

  HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* information) noexcept override;
  HRESULT STDMETHODCALLTYPE OnMnemonic(LPMSG message) noexcept override;
  HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID property) noexcept override;
  HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) noexcept override;
};

}  // namespace rangewerks::com
