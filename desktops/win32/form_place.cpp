// Where a form's window stands, and how large it is.
#include "desktops/win32/form_at_work.h"
#include "desktops/win32/newer_windows.h"
#include "desktops/win32/text.h"
#include "desktops/win32/units.h"
#include "desktops/win32/win32_form_window.h"

namespace rangewerks::desktops {

namespace {

/// A length as the form has it, when it is this many pixels; else the pixels' own.
double Exact(double known, int pixels, int dpi) {
  return ToPixels(known, dpi) == pixels ? known : ToTwips(pixels, dpi);
}

}  // namespace

forms::FormWindow::Frame Win32FormWindow::FrameSize() const {
  static const auto forDpi =
      UserFunction<BOOL(WINAPI*)(LPRECT, DWORD, BOOL, DWORD, UINT)>("AdjustWindowRectExForDpi");
  if (form_.Design().border == forms::Border::Embedded) return {};
  RECT frame{};
  const BOOL menu = form_.MenuBar().empty() ? FALSE : TRUE;
  if (forDpi == nullptr ||
      forDpi(&frame, Style(), menu, ExtendedStyle(), static_cast<UINT>(around_.dpi)) == FALSE) {
    AdjustWindowRectEx(&frame, Style(), menu, ExtendedStyle());
  }
  return {ToTwips(WidthOf(frame), around_.dpi), ToTwips(HeightOf(frame), around_.dpi)};
}

void Win32FormWindow::FormChanged(forms::FormAspect aspect) {
  if (window_ == nullptr) return;
  const AtWork atWork(*this);
  const VisualStyles::Active active(*styles_);
  switch (aspect) {
    case forms::FormAspect::Caption:
      SetWindowTextW(window_, Utf16Of(form_.Caption()).c_str());
      return;
    case forms::FormAspect::Place:
      return ApplyPlace();
    case forms::FormAspect::TopMost:
      return ApplyTopMost();
  }
}

void Win32FormWindow::ApplyPlace() {
  const OwnChange ownChange(*this);
  const RECT place = ToPixels(form_.OuterPlace(), around_.dpi);
  SetWindowPos(window_, nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void Win32FormWindow::ApplyTopMost() {
  const OwnChange ownChange(*this);
  SetWindowPos(window_, form_.IsTopMost() ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE);
}

// What hasn't changed by a pixel is told as the form knows it, so that a move isn't taken for a
// change of size because of a fraction of a pixel.
void Win32FormWindow::ReportPlace() {
  if (ownChanges_ > 0 || IsIconic(window_) != FALSE) return;
  RECT now{};
  GetWindowRect(window_, &now);
  if (form_.Design().border == forms::Border::Embedded) {
    MapWindowPoints(nullptr, GetParent(window_), reinterpret_cast<POINT*>(&now), 2);
  }
  const forms::Place& known = form_.OuterPlace();
  const int dpi = around_.dpi;
  form_.PersonMoved({Exact(known.left, now.left, dpi), Exact(known.top, now.top, dpi),
                     Exact(known.width, WidthOf(now), dpi),
                     Exact(known.height, HeightOf(now), dpi)});
}

void Win32FormWindow::ChangeResolution(int dpi, const RECT& place) {
  {
    const OwnChange ownChange(*this);
    around_.dpi = dpi;
    auto fonts = std::make_unique<Fonts>(form_.Design(), dpi);
    std::swap(around_.fonts, fonts);  // the old ones live until no control uses them
    SetWindowPos(window_, nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    for (const auto& control : controls_) control->ApplyAll();
  }
  ReportPlace();
}

}  // namespace rangewerks::desktops
