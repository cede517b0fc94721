#include "control/container.h"

#include <chrono>
#include <utility>

namespace rangewerks::tests {

namespace {

template <class Interface>
HRESULT Give(Interface* object, void** result) {
  object->AddRef();
  *result = object;
  return S_OK;
}

}  // namespace

HRESULT Frame::QueryInterface(REFIID iid, void** object) noexcept {
  if (iid == IID_IUnknown || iid == IID_IOleInPlaceFrame || iid == IID_IOleInPlaceUIWindow) {
    return Give<IOleInPlaceFrame>(this, object);
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

HRESULT Frame::GetWindow(HWND* window) noexcept {
  *window = container.window;
  return S_OK;
}

HRESULT Frame::SetBorderSpace(LPCBORDERWIDTHS widths) noexcept {
  container.calls.emplace_back(widths == nullptr ? "no bars" : "bars");
  return S_OK;
}

HRESULT Frame::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR /*name*/) noexcept {
  container.calls.emplace_back(object == nullptr ? "no active object" : "active object");
  active = com::Pointer(object);
  return S_OK;
}

HRESULT Site::QueryInterface(REFIID iid, void** object) noexcept {
  if (iid == IID_IUnknown || iid == IID_IOleClientSite) {
    return Give<IOleClientSite>(this, object);
  }
  if (iid == IID_IOleInPlaceSite || iid == IID_IOleWindow) {
    return Give<IOleInPlaceSite>(this, object);
  }
  if (iid == IID_IOleControlSite) return Give<IOleControlSite>(this, object);
  *object = nullptr;
  return E_NOINTERFACE;
}

HRESULT Site::SaveObject() noexcept {
  container.calls.emplace_back("save");
  return S_OK;
}

HRESULT Site::ShowObject() noexcept {
  container.calls.emplace_back("show");
  return S_OK;
}

HRESULT Site::GetWindow(HWND* window) noexcept {
  *window = container.window;
  return S_OK;
}

HRESULT Site::CanInPlaceActivate() noexcept {
  container.calls.emplace_back("may it?");
  return container.allows ? S_OK : S_FALSE;
}

HRESULT Site::OnInPlaceActivate() noexcept {
  container.calls.emplace_back("active");
  return container.fails ? E_FAIL : S_OK;
}

HRESULT Site::OnUIActivate() noexcept {
  container.calls.emplace_back("user interface");
  return S_OK;
}

HRESULT Site::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                               LPRECT place, LPRECT clip,
                               LPOLEINPLACEFRAMEINFO /*information*/) noexcept {
  container.frame.AddRef();
  *frame = &container.frame;
  *document = nullptr;
  *place = container.place;
  *clip = container.place;
  return S_OK;
}

HRESULT Site::OnUIDeactivate(BOOL /*undoable*/) noexcept {
  container.calls.emplace_back("no user interface");
  if (container.deactivated != nullptr) container.deactivated->InPlaceDeactivate();
  return S_OK;
}

HRESULT Site::OnInPlaceDeactivate() noexcept {
  container.calls.emplace_back("inactive");
  return S_OK;
}

HRESULT Site::TranslateAccelerator(LPMSG message, DWORD modifiers) noexcept {
  container.calls.push_back("key " + std::to_string(message->wParam) + " with " +
                            std::to_string(modifiers));
  return container.takesTabs ? S_OK : S_FALSE;
}

Container::Container()
    : window(CreateWindowExW(0, L"Static", L"Container", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 80,
                             460, 240, nullptr, nullptr, nullptr, nullptr)) {
  SetForegroundWindow(window);
}

Container::~Container() {
  if (IsWindow(window) != FALSE) DestroyWindow(window);
}

bool Container::Serve(const std::function<bool()>& until) const {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(15);
  while (!until()) {
    if (std::chrono::steady_clock::now() > end) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
      const com::Pointer<IOleInPlaceActiveObject> active = frame.active;
      if (active && active->TranslateAccelerator(&message) == S_OK) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  return true;
}

std::vector<std::string> Container::TakeCalls() { return std::exchange(calls, {}); }

}  // namespace rangewerks::tests
