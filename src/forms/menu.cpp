#include "forms/menu.h"

#include <utility>

#include "forms/form.h"

namespace rangewerks::forms {

MenuEntry::MenuEntry(Form& form, std::string name, std::string caption)
    : form_(&form),
      siblings_(&form.menuBar_),
      name_(std::move(name)),
      design_(std::move(caption)),
      now_{.caption = design_} {
  siblings_->push_back(this);
}

MenuEntry::MenuEntry(MenuEntry& parent, std::string name, std::string caption)
    : form_(parent.form_),
      above_(&parent),
      siblings_(&parent.entries_),
      name_(std::move(name)),
      design_(std::move(caption)),
      now_{.caption = design_} {
  siblings_->push_back(this);
}

MenuEntry::~MenuEntry() {
  form_->DropWindow();
  std::erase(*siblings_, this);
}

const std::string& MenuEntry::get_Caption() const {
  form_->Load();
  return now_.caption;
}

bool MenuEntry::get_Enabled() const {
  form_->Load();
  return now_.enabled;
}

bool MenuEntry::get_Checked() const {
  form_->Load();
  return now_.checked;
}

template <class T>
void MenuEntry::Write(T State::*property, const T& value) {
  form_->Load();
  if (now_.*property == value) return;
  now_.*property = value;
  if (FormWindow* window = form_->Window()) window->MenuChanged(*this);
}

void MenuEntry::let_Caption(const std::string& value) { Write(&State::caption, value); }
void MenuEntry::let_Enabled(bool value) { Write(&State::enabled, value); }
void MenuEntry::let_Checked(bool value) { Write(&State::checked, value); }

void MenuEntry::Reset() {
  now_ = {.caption = design_};
  for (MenuEntry* entry : entries_) entry->Reset();
}

bool MenuEntry::IsUsable() const {
  if (!now_.enabled || IsSeparator()) return false;
  return above_ != nullptr ? above_->IsUsable() : form_->IsVisible();
}

void MenuEntry::PersonClicked() {
  form_->Handle([&] {
    if (Click) Click();
  });
}

}  // namespace rangewerks::forms
