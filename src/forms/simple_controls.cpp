#include "forms/simple_controls.h"

#include <cmath>

#include "forms/form.h"

namespace rangewerks::forms {

namespace {

/// Before day 0 the time within a day counts away from it too.
automation::Date DayOf(automation::Date date) { return {std::trunc(date.serial)}; }

}  // namespace

void Label::PersonDoubleClicked() {
  OwningForm().Handle([&] {
    if (DblClick) DblClick();
  });
}

TextBox::TextBox(Container& parent, std::string name, ControlProperties design)
    : Control(parent, ControlKind::TextBox, std::move(name), std::move(design)) {}

void TextBox::let_Text(const std::string& value) {
  if (Now().text == value) return;
  Write(&ControlProperties::text, value, Aspect::Text);
  if (Change) Change();
}

void TextBox::PersonTyped(const std::string& text) {
  if (Properties().text == text) return;
  FromPerson().text = text;
  OwningForm().Handle([&] {
    if (Change) Change();
  });
}

void CommandButton::PersonClicked() {
  OwningForm().Handle([&] {
    if (Click) Click();
  });
}

void CheckBox::PersonClicked() {
  FromPerson().value = !Properties().value;
  Changed(Aspect::Value);
  OwningForm().Handle([&] {
    if (Click) Click();
  });
}

automation::Date Calendar::get_Date() const {
  OwningForm().Load();
  return day_;
}

void Calendar::let_Date(automation::Date value) {
  OwningForm().Load();
  day_ = DayOf(value);
  Changed(Aspect::Content);
}

void Calendar::PersonChose(automation::Date day) { day_ = DayOf(day); }

void Calendar::PersonDoubleClicked() {
  OwningForm().Handle([&] {
    if (DblClick) DblClick();
  });
}

void Calendar::Reset() {
  Control::Reset();
  day_ = {};
}

}  // namespace rangewerks::forms
