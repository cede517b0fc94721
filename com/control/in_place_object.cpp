#include "com/control/in_place_object.h"

namespace rangewerks::com {

namespace {

HRESULT WindowOf(ControlParts& parts, const InPlace& inPlace, HWND* window) noexcept {
  if (window == nullptr) return E_POINTER;
  *window = nullptr;
  if (!inPlace.IsActive()) return E_FAIL;
  return Guarded([&] {
    *window = parts.form.Window();
    return S_OK;
  });
}

}  // namespace

HRESULT InPlaceObject::GetWindow(HWND* window) noexcept {
  return WindowOf(parts_, inPlace_, window);
}

HRESULT InPlaceObject::ContextSensitiveHelp(BOOL /*enter*/) noexcept { return E_NOTIMPL; }

HRESULT InPlaceObject::InPlaceDeactivate() noexcept {
  return Guarded([&] {
    inPlace_.Deactivate();
    return S_OK;
  });
}

HRESULT InPlaceObject::UIDeactivate() noexcept {
  return Guarded([&] {
    inPlace_.DeactivateUserInterface();
    return S_OK;
  });
}

HRESULT InPlaceObject::SetObjectRects(LPCRECT place, LPCRECT clip) noexcept {
  if (place == nullptr || clip == nullptr) return E_POINTER;
  return Guarded([&] {
    inPlace_.SetPlace(*place, *clip);
    return S_OK;
  });
}

HRESULT InPlaceObject::ReactivateAndUndo() noexcept { return INPLACE_E_NOTUNDOABLE; }

HRESULT ActiveObject::GetWindow(HWND* window) noexcept {
  return WindowOf(parts_, *inPlace_, window);
}

HRESULT ActiveObject::ContextSensitiveHelp(BOOL /*enter*/) noexcept { return E_NOTIMPL; }

// Tab goes on to the container behind the last field, Enter presses the button that has the
// keyboard; all else is the container's.
HRESULT ActiveObject::TranslateAccelerator(LPMSG message) noexcept {
  if (message == nullptr) return E_POINTER;
  if (!inPlace_->HasUserInterface() || message->message != WM_KEYDOWN) return S_FALSE;
  return Guarded([&] {
    HWND form = parts_.form.Window();
    if (IsChild(form, message->hwnd) == FALSE) return S_FALSE;
    if (message->wParam == VK_TAB && GetKeyState(VK_CONTROL) >= 0) {
      return MoveFocus(form, GetKeyState(VK_SHIFT) < 0, *message) ? S_OK : S_FALSE;
    }
    const auto kind = static_cast<UINT>(SendMessageW(message->hwnd, WM_GETDLGCODE, 0, 0));
    if (message->wParam != VK_RETURN || (kind & DLGC_BUTTON) == 0) return S_FALSE;
    SendMessageW(message->hwnd, BM_CLICK, 0, 0);
    return S_OK;
  });
}

bool ActiveObject::MoveFocus(HWND form, bool back, MSG& message) {
  HWND first = GetNextDlgTabItem(form, nullptr, FALSE);
  HWND last = GetNextDlgTabItem(form, first, TRUE);
  const bool leaving = message.hwnd == (back ? first : last);
  if (leaving) {
    constexpr DWORD kShift = 1;  // KEYMOD_SHIFT
    const auto container = parts_.site.TryQuery<IOleControlSite>();
    if (container && container->TranslateAccelerator(&message, back ? kShift : 0) == S_OK) {
      return true;
    }
  }
  HWND next = GetNextDlgTabItem(form, message.hwnd, back ? TRUE : FALSE);
  if (next == nullptr) return false;
  SetFocus(next);
  return true;
}

HRESULT ActiveObject::OnFrameWindowActivate(BOOL /*activate*/) noexcept { return S_OK; }

HRESULT ActiveObject::OnDocWindowActivate(BOOL /*activate*/) noexcept { return S_OK; }

HRESULT ActiveObject::ResizeBorder(LPCRECT /*border*/, IOleInPlaceUIWindow* /*window*/,
                                   BOOL /*isFrame*/) noexcept {
  return S_OK;  // it has no bars in the container's frame
}

HRESULT ActiveObject::EnableModeless(BOOL /*enable*/) noexcept { return S_OK; }

HRESULT OleControl::GetControlInfo(CONTROLINFO* information) noexcept {
  if (information == nullptr) return E_POINTER;
  information->hAccel = nullptr;
  information->cAccel = 0;
  information->dwFlags = 0;
  return S_OK;
}

HRESULT OleControl::OnMnemonic(LPMSG /*message*/) noexcept { return S_OK; }

HRESULT OleControl::OnAmbientPropertyChange(DISPID /*property*/) noexcept { return S_OK; }

HRESULT OleControl::FreezeEvents(BOOL /*freeze*/) noexcept { return S_OK; }

}  // namespace rangewerks::com
