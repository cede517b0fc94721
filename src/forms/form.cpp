#include "forms/form.h"

#include <utility>

#include "forms/menu.h"

namespace rangewerks::forms {

namespace {

/// Runs over all controls on a container, those on frames and panels too.
template <class Action>
void ForEachControl(const Container& container, const Action& action) {
  for (Control* control : container.Children()) {
    action(*control);
    if (const auto* inner = dynamic_cast<const Container*>(control)) ForEachControl(*inner, action);
  }
}

}  // namespace

Form::Form(Toolkit& toolkit, std::string name, FormDesign design)
    : toolkit_(&toolkit),
      name_(std::move(name)),
      design_(std::move(design)),
      caption_(design_.caption) {}

Form::~Form() { DropWindow(); }

std::string Form::get_Caption() {
  Load();
  return caption_;
}

void Form::let_Caption(const std::string& value) {
  Load();
  if (caption_ == value) return;
  caption_ = value;
  if (window_) window_->FormChanged(FormAspect::Caption);
}

double Form::get_Left() {
  Load();
  return place_.left;
}

void Form::let_Left(double value) {
  Load();
  Move({value, place_.top, place_.width, place_.height});
}

double Form::get_Top() {
  Load();
  return place_.top;
}

void Form::let_Top(double value) {
  Load();
  Move({place_.left, value, place_.width, place_.height});
}

double Form::get_Width() {
  Load();
  return place_.width;
}

void Form::let_Width(double value) {
  Load();
  Move({place_.left, place_.top, value, place_.height});
}

double Form::get_Height() {
  Load();
  return place_.height;
}

void Form::let_Height(double value) {
  Load();
  Move({place_.left, place_.top, place_.width, value});
}

void Form::Move(const Place& place) {
  Load();
  if (place_ == place) return;
  const bool resized = place_.width != place.width || place_.height != place.height;
  place_ = place;
  if (window_) window_->FormChanged(FormAspect::Place);
  if (resized) Form_Resize();
}

std::intptr_t Form::get_hWnd() {
  Load();
  return window_ ? window_->Handle() : 0;
}

void Form::SetTopMost(bool bTopMost) {
  Load();
  topMost_ = bTopMost;
  if (window_) window_->FormChanged(FormAspect::TopMost);
}

void Form::SetFocus() {
  Load();
  if (window_) window_->FocusOnForm();
}

void Form::TakeDesignSize() {
  const FormWindow::Frame frame = window_->FrameSize();
  place_.width = design_.innerWidth + frame.width;
  place_.height = design_.innerHeight + frame.height;
  if (design_.position == StartPosition::CentreOfScreen) {
    const Size screen = toolkit_->Screen();
    place_.left = (screen.width - place_.width) / 2;
    place_.top = (screen.height - place_.height) / 2;
  }
  window_->FormChanged(FormAspect::Place);
}

void Form::Load() {
  if (state_ != State::NotLoaded) return;
  const std::shared_ptr<Form> self = weak_from_this().lock();
  state_ = State::Loaded;
  if (self) toolkit_->KeepAlive(self);
  try {
    keeper_ = toolkit_->Keeper();
    window_ = toolkit_->MakeWindow(*this);
    TakeDesignSize();
    Form_Load();
  } catch (...) {
    DropWindow();
    throw;
  }
}

void Form::Unload() {
  if (state_ != State::Loaded) return;
  const std::shared_ptr<Form> keep = weak_from_this().lock();
  state_ = State::Unloading;
  try {
    Form_Unload();
  } catch (...) {
    DropWindow();
    throw;
  }
  DropWindow();
}

void Form::DropWindow() {
  if (state_ == State::NotLoaded) return;
  // Let go in the other order: the window first, and the form's last holder when all is done.
  const std::shared_ptr<Form> keptAlive = toolkit_->LetGoOf(*this);
  const std::shared_ptr<void> keeper = std::exchange(keeper_, nullptr);
  const std::shared_ptr<FormWindow> window = std::exchange(window_, nullptr);
  Reset();
}

void Form::Reset() {
  state_ = State::NotLoaded;
  visible_ = false;
  hasBeenShown_ = false;
  topMost_ = false;
  caption_ = design_.caption;
  place_ = {};
  ForEachControl(*this, [](Control& control) { control.Reset(); });
  for (MenuEntry* entry : menuBar_) entry->Reset();
}

void Form::Show(Modality modality) {
  const std::shared_ptr<Form> keep = weak_from_this().lock();
  Load();
  // The form's own code may unload it while it loads, and when it is told its size.
  if (window_ && !std::exchange(hasBeenShown_, true)) Form_Resize();
  if (!window_) return;
  visible_ = true;
  window_->Show();
  if (modality == Modality::Modal) toolkit_->RunModal(*this);
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  if (window_) window_->Hide();
}

void Form::PersonMoved(const Place& place) {
  if (state_ != State::Loaded || place_ == place) return;
  const bool resized = place_.width != place.width || place_.height != place.height;
  place_ = place;
  if (resized) Handle([&] { Form_Resize(); });
}

void Form::PersonClosed() {
  Handle([&] {
    if (state_ != State::Loaded) return;
    Form_QueryUnload();
    Unload();
  });
}

}  // namespace rangewerks::forms
