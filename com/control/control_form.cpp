#include "com/control/control_form.h"

#include <utility>

#include "com/bridge/failures.h"
#include "com/module/module.h"

namespace rangewerks::com {

ControlForm::ControlForm(forms::Toolkit& toolkit, std::string name, double width, double height)
    : Form(toolkit, std::move(name),
           {.innerWidth = width,
            .innerHeight = height,
            .border = forms::Border::Embedded,
            .position = forms::StartPosition::Manual}),
      restingPlace_(CreateWindowExW(0, L"Static", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                    ModuleInstance(), nullptr)) {
  EmbedIn(reinterpret_cast<std::intptr_t>(restingPlace_));
}

ControlForm::~ControlForm() {
  DropWindow();
  if (restingPlace_ != nullptr) DestroyWindow(restingPlace_);
}

HWND ControlForm::Window() { return reinterpret_cast<HWND>(get_hWnd()); }

void ControlForm::StandIn(HWND container, const RECT& place) {
  HWND window = Window();
  if (SetParent(window, container) == nullptr) {
    throw FailureOf(HRESULT_FROM_WIN32(GetLastError()));
  }
  SetWindowPos(window, HWND_TOP, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOACTIVATE);
  Show();
}

void ControlForm::Rest() {
  if (!IsLoaded()) return;
  Hide();
  SetParent(Window(), restingPlace_);
}

}  // namespace rangewerks::com
