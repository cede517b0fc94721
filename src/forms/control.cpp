#include "forms/control.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace rangewerks::forms {

Control::Control(Container& parent, ControlKind kind, std::string name, ControlProperties design)
    : parent_(parent),
      kind_(kind),
      name_(std::move(name)),
      design_(std::move(design)),
      now_(design_) {
  parent_.children_.push_back(this);
}

Control::~Control() {
  // The window must go before the first of the controls that it shows.
  OwningForm().DropWindow();
  std::erase(parent_.children_, this);
}

const ControlProperties& Control::Now() const {
  OwningForm().Load();
  return now_;
}

ControlProperties& Control::Live() {
  OwningForm().Load();
  return now_;
}

void Control::Changed(Aspect aspect) {
  if (FormWindow* window = OwningForm().Window()) window->ControlChanged(*this, aspect);
}

void Control::let_Left(double value) {
  Place place = Now().place;
  place.left = value;
  Move(place);
}

void Control::let_Top(double value) {
  Place place = Now().place;
  place.top = value;
  Move(place);
}

void Control::let_Width(double value) {
  Place place = Now().place;
  place.width = value;
  Move(place);
}

void Control::let_Height(double value) {
  Place place = Now().place;
  place.height = value;
  Move(place);
}

void Control::Move(const Place& place) { Write(&ControlProperties::place, place, Aspect::Place); }

void Control::let_Visible(bool value) {
  Write(&ControlProperties::visible, value, Aspect::Visible);
}

void Control::let_Enabled(bool value) {
  Write(&ControlProperties::enabled, value, Aspect::Enabled);
}

void Control::let_ToolTipText(const std::string& value) {
  Write(&ControlProperties::toolTip, value, Aspect::ToolTip);
}

void Control::let_ForeColor(Colour value) {
  Write(&ControlProperties::foreColor, value, Aspect::Colours);
}

void Control::let_BackColor(Colour value) {
  Write(&ControlProperties::backColor, value, Aspect::Colours);
}

void Control::SetFocus() {
  OwningForm().Load();
  if (FormWindow* window = OwningForm().Window()) window->FocusOn(*this);
}

bool Control::IsShown() const {
  if (!now_.visible) return false;
  const auto* above = dynamic_cast<const Control*>(&parent_);
  return above != nullptr ? above->IsShown() : OwningForm().IsVisible();
}

bool Control::IsUsable() const {
  if (!now_.visible || !now_.enabled) return false;
  const auto* above = dynamic_cast<const Control*>(&parent_);
  return above != nullptr ? above->IsUsable() : OwningForm().IsVisible();
}

}  // namespace rangewerks::forms
