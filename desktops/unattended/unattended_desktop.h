// A desktop for programs that run with nobody there: nothing waits for a person. What would have
// been shown is written down.
//
//   if (desktops::IsUnattended()) toolkit = std::make_shared<desktops::UnattendedDesktop>();
//
// A message box is answered with its default button, a modal form is closed at once as by its title
// bar, a modeless one stays loaded without a window, and every dialog is cancelled.
#pragma once

#include <iostream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "forms/toolkit.h"

namespace rangewerks::desktops {

/// Whether the environment asks for a run without a person: RANGEWERKS_UNATTENDED is neither empty
/// nor 0.
bool IsUnattended();

class UnattendedDesktop final : public forms::Toolkit {
 public:
  /// `output` takes what would have been shown, and lives as long as this.
  explicit UnattendedDesktop(std::ostream& output = std::cerr) : output_(&output) {}
  ~UnattendedDesktop() override;

  std::shared_ptr<forms::FormWindow> MakeWindow(forms::Form& form) override;
  void RunModal(forms::Form& form) override;
  forms::Answer ShowMessage(const forms::Message& message, forms::Form* owner) override;
  std::optional<std::string> ShowInput(const std::string& prompt, const std::string& title,
                                       const std::string& text, forms::Form* owner) override;
  std::optional<forms::Colour> ChooseColour(forms::Form* owner) override;
  std::optional<std::string> ChooseFile(const forms::FileDialog& dialog,
                                        forms::Form* owner) override;
  std::string BrowseForFolder(const std::string& title, forms::Form* owner) override;
  void Beep() override {}
  void SetMousePointer(forms::MousePointer pointer) override { pointer_ = pointer; }
  forms::MousePointer Pointer() const override { return pointer_; }
  forms::Size Screen() override;
  void ShowHelp(const std::string& file) override;

 private:
  std::ostream* output_;
  forms::MousePointer pointer_ = forms::MousePointer::Default;
};

}  // namespace rangewerks::desktops
