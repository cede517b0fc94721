#include "desktops/win32/simple_windows.h"

#include <algorithm>
#include <utility>

#include "desktops/win32/text.h"
#include "desktops/win32/units.h"
#include "desktops/win32/window_text.h"

namespace rangewerks::desktops {

namespace {

/// The side of a small picture on a button, at the standard resolution.
constexpr int kSmallPicture = 16;
constexpr int kLineThickness = 2;

DWORD LabelStyle(const forms::ControlProperties& design) {
  DWORD style = SS_NOTIFY;  // for double clicks, and for tool tips
  if (!design.useMnemonic) style |= SS_NOPREFIX;
  switch (design.alignment) {
    case forms::Alignment::Left:
      return style | SS_LEFT;
    case forms::Alignment::Right:
      return style | SS_RIGHT;
    case forms::Alignment::Centre:
      return style | SS_CENTER;
  }
  return style;
}

DWORD TextBoxStyle(const forms::ControlProperties& design) {
  DWORD style = WS_TABSTOP;
  if (design.locked) style |= ES_READONLY;
  style |= design.multiLine ? ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL : ES_AUTOHSCROLL;
  if (design.multiLine && !design.locked) style |= ES_WANTRETURN;
  switch (design.alignment) {
    case forms::Alignment::Left:
      return style | ES_LEFT;
    case forms::Alignment::Right:
      return style | ES_RIGHT;
    case forms::Alignment::Centre:
      return style | ES_CENTER;
  }
  return style;
}

DWORD ButtonStyle(const forms::ControlProperties& design) {
  DWORD style = WS_TABSTOP | BS_MULTILINE;
  style |= design.isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  // A picture alone; beside a caption it needs no style.
  if (design.text.empty() && design.picture != forms::Picture::None) style |= BS_ICON;
  return style;
}

}  // namespace

LabelWindow::LabelWindow(Surroundings& around, forms::Label& label, HWND parent, int id)
    : ControlWindow(around, label, parent, id,
                    {.className = L"Static", .style = LabelStyle(label.Properties())}),
      label_(label) {}

void LabelWindow::Commanded(WORD code) {
  if (code == STN_DBLCLK) label_.PersonDoubleClicked();
}

TextBoxWindow::TextBoxWindow(Surroundings& around, forms::TextBox& box, HWND parent, int id)
    : ControlWindow(around, box, parent, id,
                    {.className = L"Edit",
                     .style = TextBoxStyle(box.Properties()),
                     .extendedStyle = WS_EX_CLIENTEDGE}),
      box_(box) {
  SendMessageW(Handle(), EM_SETLIMITTEXT, 0, 0);  // as much as the control can hold
}

void TextBoxWindow::Commanded(WORD code) {
  if (code == EN_CHANGE && !IsApplying()) box_.PersonTyped(Utf8Of(TextOf(Handle())));
}

HBRUSH TextBoxWindow::Paint(HDC target) {
  const forms::ControlProperties& now = Shown().Properties();
  const bool given = now.backColor != forms::SystemColour::kButtonFace;
  const bool usable = IsWindowEnabled(Handle()) != FALSE;
  forms::Colour ground = forms::SystemColour::kWindow;
  if (now.locked || !usable) ground = forms::SystemColour::kButtonFace;
  if (given) ground = now.backColor;
  SetTextColor(target, ToColorRef(usable ? now.foreColor : forms::SystemColour::kGrayText));
  SetBkColor(target, ToColorRef(ground));
  return Around().brushes.Get(ground);
}

ButtonWindow::ButtonWindow(Surroundings& around, forms::CommandButton& button, HWND parent, int id)
    : ControlWindow(around, button, parent, id,
                    {.className = L"Button", .style = ButtonStyle(button.Properties())}),
      button_(button) {}

void ButtonWindow::Commanded(WORD code) {
  if (code == BN_CLICKED) button_.PersonClicked();
}

void ButtonWindow::ApplyPicture() {
  const forms::Picture picture = button_.Properties().picture;
  if (picture == forms::Picture::None && !icon_) return;
  OwnedIcon icon;
  if (picture != forms::Picture::None) {
    icon = MakeIcon(forms::Draw(picture, MulDiv(kSmallPicture, Around().dpi, kStandardDpi)));
  }
  SendMessageW(Handle(), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon.get()));
  icon_ = std::move(icon);
}

CheckBoxWindow::CheckBoxWindow(Surroundings& around, forms::CheckBox& box, HWND parent, int id)
    : ControlWindow(around, box, parent, id,
                    // The control ticks itself: its state is the one that counts.
                    {.className = L"Button", .style = WS_TABSTOP | BS_CHECKBOX | BS_MULTILINE}),
      box_(box) {}

void CheckBoxWindow::Commanded(WORD code) {
  if (code == BN_CLICKED) box_.PersonClicked();
}

void CheckBoxWindow::ApplyValue() {
  SendMessageW(Handle(), BM_SETCHECK, box_.Properties().value ? BST_CHECKED : BST_UNCHECKED, 0);
}

PictureBoxWindow::PictureBoxWindow(Surroundings& around, forms::Control& box, HWND parent, int id)
    : ControlWindow(around, box, parent, id,
                    {.className = L"Static", .style = SS_ICON | SS_CENTERIMAGE | SS_NOTIFY}) {}

void PictureBoxWindow::ApplyPicture() {
  const forms::ControlProperties& now = Shown().Properties();
  OwnedIcon icon;
  if (now.picture != forms::Picture::None) {
    const int side = Pixels(std::min(now.place.width, now.place.height));
    icon = MakeIcon(forms::Draw(now.picture, std::max(side, 1)));
  }
  SendMessageW(Handle(), STM_SETICON, reinterpret_cast<WPARAM>(icon.get()), 0);
  icon_ = std::move(icon);
}

LineWindow::LineWindow(Surroundings& around, forms::Control& line, HWND parent, int id)
    : ControlWindow(around, line, parent, id, {.className = L"Static", .style = SS_ETCHEDHORZ}) {}

void LineWindow::ApplyPlace() {
  const RECT place = ToPixels(Shown().Properties().place, Around().dpi);
  SetWindowPos(Handle(), nullptr, place.left, place.top, WidthOf(place), kLineThickness,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace rangewerks::desktops
