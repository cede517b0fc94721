#include "sheetbuild/ctlColourPallet.h"

#include <utility>

#include "errors/attempt.h"
#include "forms/form.h"

namespace rangewerks {

using forms::Colour;
using forms::ControlProperties;

namespace {

constexpr Colour kWhite = 0xFFFFFF;

}  // namespace

ctlColourPallet::ctlColourPallet(forms::Container& parent, std::string name,
                                 ControlProperties design)
    : Panel(parent, std::move(name), std::move(design)) {
  cmdClmColour.Click = [this] { Choose(txtClmColour, columnColour_); };
  cmdHeadColour.Click = [this] { Choose(txtHeadColour, headingColour_); };
}

ControlProperties ctlColourPallet::Swatch(double top) {
  return {
      .place = {2160, top, 2415, 285}, .backColor = forms::SystemColour::kWindow, .locked = true};
}

ControlProperties ctlColourPallet::Chooser(double top) {
  return {.place = {4740, top, 495, 375}, .picture = forms::Picture::Palette};
}

void ctlColourPallet::Reset() {
  Panel::Reset();
  headingColour_ = 0;
  columnColour_ = 0;
}

void ctlColourPallet::LoadColours() {
  txtClmColour.let_BackColor(columnColour_);
  txtHeadColour.let_BackColor(headingColour_);
}

void ctlColourPallet::NameOfTheFrame(const std::string& text) { frmControl.let_Caption(text); }

void ctlColourPallet::EnableControl(bool flag) {
  if (!flag) {
    txtClmColour.let_BackColor(kWhite);
    txtHeadColour.let_BackColor(kWhite);
  }
  frmControl.let_Enabled(flag);
}

void ctlColourPallet::EnableTxtClmColour(bool flag) { txtClmColour.let_Enabled(flag); }

void ctlColourPallet::EnableTxtHeadColour(bool flag) {
  txtHeadColour.let_Enabled(flag);
  cmdHeadColour.let_Enabled(flag);
}

void ctlColourPallet::Framelength(std::int16_t length) { frmControl.let_Height(length); }

Colour ctlColourPallet::ChooseColour(Colour fallback) {
  Colour chosen = fallback;
  Attempt([&] {
    forms::Form& form = OwningForm();
    chosen = form.Desktop().ChooseColour(&form).value_or(fallback);
  });
  return chosen;
}

void ctlColourPallet::Choose(forms::TextBox& swatch, std::int32_t& colour) {
  const Colour chosen = ChooseColour(swatch.get_BackColor());
  if (!OwningForm().IsLoaded()) return;  // gone meanwhile, and using the swatch would load it anew
  swatch.let_BackColor(chosen);
  colour = swatch.get_BackColor();
}

}  // namespace rangewerks
