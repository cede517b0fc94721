// Forms as windows of Windows.
//
//   desktops::Win32Desktop desktop;
//   desktop.Shared<filesave::frmPath>().Show(forms::Modality::Modal);
//
// Modeless forms live inside whatever message loop the thread has; modal ones bring their own. The
// controls take the look of the person's desktop when the program or DLL that this code is linked
// into has `themes.manifest` as its resource 2 of type 24.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "forms/toolkit.h"

namespace rangewerks::desktops {

class VisualStyles;

/// Made, used and ended on one thread. Forms of its own that are shared go with it; others must
/// have gone before.
class Win32Desktop final : public forms::Toolkit {
 public:
  Win32Desktop();
  ~Win32Desktop() override;

  std::shared_ptr<forms::FormWindow> MakeWindow(forms::Form& form) override;
  void RunModal(forms::Form& form) override;
  /// A dialog without an owner stands over the active window of this thread.
  forms::Answer ShowMessage(const forms::Message& message, forms::Form* owner) override;
  std::optional<std::string> ShowInput(const std::string& prompt, const std::string& title,
                                       const std::string& text, forms::Form* owner) override;
  std::optional<forms::Colour> ChooseColour(forms::Form* owner) override;
  std::optional<std::string> ChooseFile(const forms::FileDialog& dialog,
                                        forms::Form* owner) override;
  std::string BrowseForFolder(const std::string& title, forms::Form* owner) override;
  void Beep() override;
  void SetMousePointer(forms::MousePointer pointer) override;
  forms::MousePointer Pointer() const override { return pointer_; }
  forms::Size Screen() override;
  void ShowHelp(const std::string& file) override;

 private:
  std::shared_ptr<const VisualStyles> styles_;
  forms::MousePointer pointer_ = forms::MousePointer::Default;
};

}  // namespace rangewerks::desktops
