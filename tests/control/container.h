// A program that puts a control on its form, reduced to what the control sees of it. What the
// control asks is written down.
#pragma once

#include <ocidl.h>
#include <oleidl.h>
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "com/bridge/owners.h"

namespace rangewerks::tests {

class Container;

/// A part of the container that the control holds on to; it doesn't go with its last reference.
template <class... Interfaces>
class ContainerPart : public Interfaces... {
 public:
  explicit ContainerPart(Container& owner) : container(owner) {}
  ContainerPart(const ContainerPart&) = delete;
  ContainerPart& operator=(const ContainerPart&) = delete;
  virtual ~ContainerPart() = default;

  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return --references; }

  Container& container;
  ULONG references = 0;
};

/// The window around the control's place, with its bars.
class Frame final : public ContainerPart<IOleInPlaceFrame> {
 public:
  using ContainerPart::ContainerPart;
  com::Pointer<IOleInPlaceActiveObject> active;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetBorder(LPRECT) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS widths) noexcept override;
  HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object,
                                            LPCOLESTR name) noexcept override;
  HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) noexcept override { return S_FALSE; }
};

/// The place of the one control.
class Site final : public ContainerPart<IOleClientSite, IOleInPlaceSite, IOleControlSite> {
 public:
  using ContainerPart::ContainerPart;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  // IOleClientSite
  HRESULT STDMETHODCALLTYPE SaveObject() noexcept override;
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE ShowObject() noexcept override;
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() noexcept override { return E_NOTIMPL; }
  // IOleInPlaceSite
  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CanInPlaceActivate() noexcept override;
  HRESULT STDMETHODCALLTYPE OnInPlaceActivate() noexcept override;
  HRESULT STDMETHODCALLTYPE OnUIActivate() noexcept override;
  HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame,
                                             IOleInPlaceUIWindow** document, LPRECT place,
                                             LPRECT clip,
                                             LPOLEINPLACEFRAMEINFO information) noexcept override;
  HRESULT STDMETHODCALLTYPE Scroll(SIZE) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL undoable) noexcept override;
  HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() noexcept override;
  HRESULT STDMETHODCALLTYPE DiscardUndoState() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE DeactivateAndUndo() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT) noexcept override { return S_OK; }
  // IOleControlSite
  HRESULT STDMETHODCALLTYPE OnControlInfoChanged() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message, DWORD modifiers) noexcept override;
  HRESULT STDMETHODCALLTYPE OnFocus(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE ShowPropertyFrame() noexcept override { return E_NOTIMPL; }
};

class Container {
 public:
  Container();
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;
  ~Container();

  /// Serves messages as a container does, the active control's keys through it, until the condition
  /// holds. False when it still doesn't after a quarter of a minute.
  bool Serve(const std::function<bool()>& until) const;
  /// The calls since the last question.
  std::vector<std::string> TakeCalls();

  HWND window;
  RECT place{20, 30, 413, 159};
  bool allows = true;      ///< that the control becomes active
  bool fails = false;      ///< when the control does
  bool takesTabs = false;  ///< that leave the control
  /// Is deactivated as soon as it has given the user interface back.
  IOleInPlaceObject* deactivated = nullptr;
  std::vector<std::string> calls;
  Frame frame{*this};
  Site site{*this};
};

}  // namespace rangewerks::tests
