#include "desktops/unattended/unattended_desktop.h"

#include <cstdlib>
#include <string_view>

#include "desktops/unattended/form_texts.h"
#include "forms/form.h"

namespace rangewerks::desktops {
namespace {

/// Stands for the window of one form; the form itself keeps all that it shows.
class UnattendedWindow final : public forms::FormWindow {
 public:
  UnattendedWindow(std::ostream& output, const forms::Form& form)
      : output_(&output), form_(&form) {}

  void Show() override { *output_ << TextsOf(*form_) << std::flush; }
  void Hide() override {}
  void FormChanged(forms::FormAspect /*aspect*/) override {}
  void ControlChanged(forms::Control& /*control*/, forms::Aspect /*aspect*/) override {}
  void MenuChanged(forms::MenuEntry& /*entry*/) override {}
  void NodeChanged(forms::TreeView& /*tree*/, forms::TreeNode& /*node*/) override {}
  void ItemChanged(forms::ListView& /*list*/, forms::ListItem& /*item*/) override {}
  void FocusOn(forms::Control& /*control*/) override {}
  void FocusOnForm() override {}
  Frame FrameSize() const override { return {}; }
  std::intptr_t Handle() const override { return 0; }

 private:
  std::ostream* output_;
  const forms::Form* form_;
};

std::string TitleOf(const std::string& title) {
  return title.empty() ? forms::Toolkit::kProductName : title;
}

}  // namespace

bool IsUnattended() {
  const char* const value = std::getenv("RANGEWERKS_UNATTENDED");  // NOLINT(concurrency-mt-unsafe)
  return value != nullptr && !std::string_view(value).empty() && std::string_view(value) != "0";
}

UnattendedDesktop::~UnattendedDesktop() { DropForms(); }

std::shared_ptr<forms::FormWindow> UnattendedDesktop::MakeWindow(forms::Form& form) {
  return std::make_shared<UnattendedWindow>(*output_, form);
}

void UnattendedDesktop::RunModal(forms::Form& form) {
  form.PersonClosed();
  // Closing fails when the form's own code does; nobody could close it then.
  if (form.IsVisible()) form.Hide();
}

forms::Answer UnattendedDesktop::ShowMessage(const forms::Message& message,
                                             forms::Form* /*owner*/) {
  *output_ << ShownTexts("Message", TitleOf(message.title), {message.text}) << std::flush;
  return forms::DefaultAnswer(message.flags);
}

std::optional<std::string> UnattendedDesktop::ShowInput(const std::string& prompt,
                                                        const std::string& title,
                                                        const std::string& /*text*/,
                                                        forms::Form* /*owner*/) {
  *output_ << ShownTexts("Input", TitleOf(title), {prompt}) << std::flush;
  return std::nullopt;
}

std::optional<forms::Colour> UnattendedDesktop::ChooseColour(forms::Form* /*owner*/) {
  *output_ << ShownTexts("Colours", TitleOf({}), {}) << std::flush;
  return std::nullopt;
}

std::optional<std::string> UnattendedDesktop::ChooseFile(const forms::FileDialog& dialog,
                                                         forms::Form* /*owner*/) {
  *output_ << ShownTexts("Files", TitleOf(dialog.title), {dialog.file}) << std::flush;
  return std::nullopt;
}

std::string UnattendedDesktop::BrowseForFolder(const std::string& title, forms::Form* /*owner*/) {
  *output_ << ShownTexts("Folders", TitleOf(title), {}) << std::flush;
  return {};
}

/// As large as most are.
forms::Size UnattendedDesktop::Screen() { return {28800, 15600}; }

void UnattendedDesktop::ShowHelp(const std::string& file) {
  *output_ << ShownTexts("Help", file, {}) << std::flush;
}

}  // namespace rangewerks::desktops
