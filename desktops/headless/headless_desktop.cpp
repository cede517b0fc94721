#include "desktops/headless/headless_desktop.h"

#include <utility>

namespace rangewerks::desktops {

/// Stands for the window of one form; the form itself keeps all that it shows.
class HeadlessWindow final : public forms::FormWindow {
 public:
  HeadlessWindow(HeadlessDesktop& desktop, forms::Form& form) : desktop_(&desktop), form_(&form) {}

  void Show() override { desktop_->formsShown_.push_back(form_->get_Name()); }
  void Hide() override {}
  void FormChanged(forms::FormAspect /*aspect*/) override {}
  void ControlChanged(forms::Control& /*control*/, forms::Aspect /*aspect*/) override {}
  void MenuChanged(forms::MenuEntry& /*entry*/) override {}
  void NodeChanged(forms::TreeView& /*tree*/, forms::TreeNode& /*node*/) override {}
  void ItemChanged(forms::ListView& /*list*/, forms::ListItem& /*item*/) override {}
  void FocusOn(forms::Control& control) override { desktop_->focus_ = control.get_Name(); }
  void FocusOnForm() override { desktop_->focus_ = form_->get_Name(); }
  /// About what title bar and borders take at 96 pixels to the inch.
  Frame FrameSize() const override { return {240, 585}; }
  std::intptr_t Handle() const override { return 0; }

 private:
  HeadlessDesktop* desktop_;
  forms::Form* form_;
};

namespace {

void RequireUsable(const forms::Control& control) {
  if (control.IsUsable()) return;
  throw std::logic_error("A person can't use " + control.get_Name() + " of " +
                         control.OwningForm().get_Name());
}

/// The next of what was told ahead of time, or nothing.
template <class T>
std::optional<T> TakeNext(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  T next = std::move(queue.front());
  queue.pop_front();
  return next;
}

/// The button of a form that a key presses.
forms::CommandButton* ButtonWith(const forms::Container& container,
                                 bool forms::ControlProperties::*role) {
  for (forms::Control* control : container.Children()) {
    auto* button = dynamic_cast<forms::CommandButton*>(control);
    if (button != nullptr && button->Properties().*role && button->IsUsable()) return button;
    if (const auto* inner = dynamic_cast<const forms::Container*>(control)) {
      if (auto* found = ButtonWith(*inner, role)) return found;
    }
  }
  return nullptr;
}

}  // namespace

HeadlessDesktop::~HeadlessDesktop() { DropForms(); }

std::logic_error HeadlessDesktop::UnexpectedForm(const forms::Form& form) {
  return std::logic_error("Nobody was told to deal with " + form.get_Name());
}

std::shared_ptr<forms::FormWindow> HeadlessDesktop::MakeWindow(forms::Form& form) {
  return std::make_shared<HeadlessWindow>(*this, form);
}

void HeadlessDesktop::RunModal(forms::Form& form) {
  const auto person = TakeNext(reactions_);
  if (!person) throw UnexpectedForm(form);
  (*person)(form);
  if (form.IsVisible()) throw std::logic_error(form.get_Name() + " was left open");
}

forms::Answer HeadlessDesktop::ShowMessage(const forms::Message& message, forms::Form* /*owner*/) {
  messages_.push_back(message);
  return TakeNext(answers_).value_or(forms::DefaultAnswer(message.flags));
}

std::optional<std::string> HeadlessDesktop::ShowInput(const std::string& prompt,
                                                      const std::string& title,
                                                      const std::string& text,
                                                      forms::Form* /*owner*/) {
  inputs_.push_back({prompt, title, text});
  return TakeNext(typedInputs_);
}

std::optional<forms::Colour> HeadlessDesktop::ChooseColour(forms::Form* /*owner*/) {
  ++colourDialogs_;
  return TakeNext(colours_);
}

std::optional<std::string> HeadlessDesktop::ChooseFile(const forms::FileDialog& dialog,
                                                       forms::Form* /*owner*/) {
  fileDialogs_.push_back(dialog);
  return TakeNext(files_);
}

std::string HeadlessDesktop::BrowseForFolder(const std::string& title, forms::Form* /*owner*/) {
  folderTitles_.push_back(title);
  return TakeNext(folders_).value_or(std::string());
}

void HeadlessDesktop::Click(forms::CommandButton& button) {
  RequireUsable(button);
  button.PersonClicked();
}

void HeadlessDesktop::Click(forms::CheckBox& box) {
  RequireUsable(box);
  box.PersonClicked();
}

void HeadlessDesktop::Click(forms::MenuEntry& entry) {
  if (!entry.IsUsable()) {
    throw std::logic_error("A person can't choose " + entry.get_Name());
  }
  entry.PersonClicked();
}

void HeadlessDesktop::Click(forms::TreeNode& node, forms::TreeView& tree) {
  RequireUsable(tree);
  tree.PersonSelected(node);
}

void HeadlessDesktop::Click(forms::ListItem& item, forms::ListView& list) {
  RequireUsable(list);
  list.PersonSelected(item);
}

void HeadlessDesktop::Click(forms::Grid& grid, std::int32_t row) {
  RequireUsable(grid);
  grid.PersonClicked(row);
}

void HeadlessDesktop::ClickColumn(forms::ListView& list, std::int32_t index) {
  RequireUsable(list);
  list.PersonClickedColumn(index);
}

void HeadlessDesktop::DoubleClick(forms::TreeView& tree) {
  RequireUsable(tree);
  tree.PersonDoubleClicked();
}

void HeadlessDesktop::DoubleClick(forms::ListView& list) {
  RequireUsable(list);
  list.PersonDoubleClicked();
}

void HeadlessDesktop::DoubleClick(forms::Label& label) {
  RequireUsable(label);
  label.PersonDoubleClicked();
}

void HeadlessDesktop::Choose(forms::Calendar& calendar, automation::Date day) {
  RequireUsable(calendar);
  calendar.PersonChose(day);
}

void HeadlessDesktop::DoubleClick(forms::Calendar& calendar, automation::Date day) {
  Choose(calendar, day);
  calendar.PersonDoubleClicked();
}

void HeadlessDesktop::Type(forms::TextBox& box, const std::string& text) {
  RequireUsable(box);
  if (box.Properties().locked) throw std::logic_error(box.get_Name() + " can't be typed into");
  box.PersonTyped(text);
}

void HeadlessDesktop::Type(forms::Grid& grid, std::int32_t row, std::size_t column,
                           const std::string& text) {
  Click(grid, row);
  grid.PersonTyped(static_cast<std::size_t>(row), column, text);
}

void HeadlessDesktop::PressEnter(forms::Form& form) {
  auto* button = ButtonWith(form, &forms::ControlProperties::isDefault);
  if (button != nullptr) Click(*button);
}

void HeadlessDesktop::PressEscape(forms::Form& form) {
  auto* button = ButtonWith(form, &forms::ControlProperties::isCancel);
  if (button != nullptr) Click(*button);
}

void HeadlessDesktop::Close(forms::Form& form) { form.PersonClosed(); }

void HeadlessDesktop::Resize(forms::Form& form, double width, double height) {
  const forms::Place& place = form.OuterPlace();
  form.PersonMoved({place.left, place.top, width, height});
}

}  // namespace rangewerks::desktops
