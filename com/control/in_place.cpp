#include "com/control/in_place.h"

namespace rangewerks::com {

namespace {

// The control of a window that is watched. The functions for this in the common controls are there
// under their names only in programs that ask for the newest of them.
constexpr const wchar_t* kWatcher = L"Rangewerks.InPlace";

}  // namespace

InPlace::~InPlace() { EndWatch(); }

void InPlace::BeginWatch() {
  SetPropW(window_, kWatcher, this);
  watched_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Watch)));
}

void InPlace::EndWatch() {
  if (window_ == nullptr || watched_ == nullptr) return;
  RemovePropW(window_, kWatcher);
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(watched_));
  watched_ = nullptr;
}

void InPlace::Activate() {
  if (IsActive()) return;
  const auto site = parts_.site.TryQuery<IOleInPlaceSite>();
  if (!site || site->CanInPlaceActivate() != S_OK) throw FailureOf(OLE_E_NOT_INPLACEACTIVE);
  HWND container = nullptr;
  Require(site->GetWindow(&container));
  RECT place{};
  RECT clip{};
  OLEINPLACEFRAMEINFO keys{};
  keys.cb = sizeof(keys);
  Pointer<IOleInPlaceFrame> frame;
  Pointer<IOleInPlaceUIWindow> document;
  Require(site->GetWindowContext(frame.Receive(), document.Receive(), &place, &clip, &keys));
  Require(site->OnInPlaceActivate());
  site_ = site;
  frame_ = frame;
  document_ = document;
  try {
    parts_.form.StandIn(container, place);
    window_ = parts_.form.Window();
    BeginWatch();
    SetPlace(place, clip);
  } catch (...) {
    Deactivate();
    throw;
  }
  parts_.site->ShowObject();
}

void InPlace::ActivateUserInterface(Focus focus) {
  Activate();
  if (hasUserInterface_) return;
  hasUserInterface_ = true;
  site_->OnUIActivate();
  if (!hasUserInterface_) return;  // the container has thought better of it
  HWND current = GetFocus();
  const bool within = current == window_ || IsChild(window_, current) != FALSE;
  if (focus == Focus::Take && !within) SetFocus(window_);
  if (frame_) {
    frame_->SetActiveObject(&active_, parts_.description.name.c_str());
    frame_->SetBorderSpace(nullptr);  // the control has no bars of its own
  }
  if (document_) document_->SetActiveObject(&active_, parts_.description.name.c_str());
}

void InPlace::DeactivateUserInterface() {
  if (!hasUserInterface_) return;
  hasUserInterface_ = false;
  if (document_) document_->SetActiveObject(nullptr, nullptr);
  if (frame_) frame_->SetActiveObject(nullptr, nullptr);
  site_->OnUIDeactivate(FALSE);
}

void InPlace::Deactivate() {
  DeactivateUserInterface();
  if (!IsActive()) return;  // or no longer: a container may do it when told of the user interface
  const Pointer<IOleInPlaceSite> site = site_;
  if (window_ != nullptr) {
    EndWatch();
    SetWindowRgn(window_, nullptr, FALSE);
    parts_.form.Rest();
  }
  WindowIsGone();
  site->OnInPlaceDeactivate();
  parts_.ViewChanged();
}

void InPlace::WindowIsGone() {
  window_ = nullptr;
  hasUserInterface_ = false;
  site_ = {};
  frame_ = {};
  document_ = {};
}

void InPlace::SetPlace(const RECT& place, const RECT& clip) {
  if (window_ == nullptr) return;
  SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
  RECT seen{};
  const bool any = IntersectRect(&seen, &place, &clip) != FALSE;
  HRGN region = nullptr;
  if (!any || EqualRect(&seen, &place) == FALSE) {
    OffsetRect(&seen, any ? -place.left : 0, any ? -place.top : 0);
    region = CreateRectRgnIndirect(&seen);
  }
  SetWindowRgn(window_, region, TRUE);  // which owns it from now on
}

LRESULT CALLBACK InPlace::Watch(HWND window, UINT message, WPARAM first, LPARAM second) {
  auto* place = static_cast<InPlace*>(GetPropW(window, kWatcher));
  if (place == nullptr) return DefWindowProcW(window, message, first, second);
  const WNDPROC watched = place->watched_;
  if (message == WM_MOUSEACTIVATE || message == WM_SETFOCUS) {
    // The person has come by a click, or the container by the keyboard.
    const Pointer<IUnknown> keep(&place->parts_.whole);
    Guarded([&] {
      place->ActivateUserInterface(Focus::Leave);
      return S_OK;
    });
  } else if (message == WM_NCDESTROY) {
    // The container has let its window go with ours in it.
    place->EndWatch();
    place->WindowIsGone();
  }
  return CallWindowProcW(watched, window, message, first, second);
}

}  // namespace rangewerks::com
