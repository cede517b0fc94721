// A desktop without windows: it keeps what forms show, lets code act as the person, and answers
// dialogs as told ahead of time.
//
//   HeadlessDesktop desktop;
//   desktop.WhenShown<frmResizeRanges>([&](frmResizeRanges& form) {
//     desktop.Type(form.txtResizeRows, "12");
//     desktop.Click(form.cmdOK);
//   });
//   commands.ResizeDetails();  // shows the form modally
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "forms/grid.h"
#include "forms/list_view.h"
#include "forms/menu.h"
#include "forms/simple_controls.h"
#include "forms/toolkit.h"
#include "forms/tree_view.h"

namespace rangewerks::desktops {

class HeadlessDesktop : public forms::Toolkit {
 public:
  ~HeadlessDesktop() override;

  // --- what the person will do -----------------------------------------------------------------

  /// The person's part in the next modal showing of a form. They are used up in their order. A
  /// modal form that nobody has been told to deal with, one of another class, and one that is left
  /// open raise std::logic_error.
  template <class F>
  void WhenShown(std::function<void(F& form)> person) {
    reactions_.push_back([person = std::move(person)](forms::Form& form) {
      auto* expected = dynamic_cast<F*>(&form);
      if (expected == nullptr) throw UnexpectedForm(form);
      person(*expected);
    });
  }
  /// How many of them haven't been used.
  std::size_t PendingReactions() const { return reactions_.size(); }
  /// Answers to the next message boxes; without one the default button is pressed.
  void AnswerMessage(forms::Answer answer) { answers_.push_back(answer); }
  /// What the next dialog of its kind gives; without one it is cancelled.
  void TypeIntoInputBox(const std::string& text) { typedInputs_.push_back(text); }
  void PickColour(forms::Colour colour) { colours_.push_back(colour); }
  void PickFile(const std::string& path) { files_.push_back(path); }
  void PickFolder(const std::string& path) { folders_.push_back(path); }

  // Each of these raises std::logic_error when a person couldn't do it: the control isn't shown or
  // can't be used.
  void Click(forms::CommandButton& button);
  void Click(forms::CheckBox& box);
  void Click(forms::MenuEntry& entry);
  void Click(forms::TreeNode& node, forms::TreeView& tree);
  void Click(forms::ListItem& item, forms::ListView& list);
  void Click(forms::Grid& grid, std::int32_t row);
  void ClickColumn(forms::ListView& list, std::int32_t index);
  void DoubleClick(forms::TreeView& tree);
  void DoubleClick(forms::ListView& list);
  void DoubleClick(forms::Label& label);
  void DoubleClick(forms::Calendar& calendar, automation::Date day);
  void Choose(forms::Calendar& calendar, automation::Date day);
  void Type(forms::TextBox& box, const std::string& text);
  void Type(forms::Grid& grid, std::int32_t row, std::size_t column, const std::string& text);
  /// Enter and Escape press the form's default and cancel buttons.
  void PressEnter(forms::Form& form);
  void PressEscape(forms::Form& form);
  /// By the title bar.
  void Close(forms::Form& form);
  void Resize(forms::Form& form, double width, double height);

  // --- what was shown --------------------------------------------------------------------------

  const std::vector<forms::Message>& Messages() const { return messages_; }
  /// The names of all forms shown, in their order.
  const std::vector<std::string>& FormsShown() const { return formsShown_; }
  struct Input {
    std::string prompt{};
    std::string title{};
    std::string text{};  ///< what stood in it at first
  };
  const std::vector<Input>& Inputs() const { return inputs_; }
  const std::vector<forms::FileDialog>& FileDialogs() const { return fileDialogs_; }
  const std::vector<std::string>& FolderTitles() const { return folderTitles_; }
  const std::vector<std::string>& HelpFiles() const { return helpFiles_; }
  std::size_t ColourDialogs() const { return colourDialogs_; }
  std::size_t Beeps() const { return beeps_; }
  /// The form or control that was last given the keyboard by code.
  const std::string& Focus() const { return focus_; }
  void SetScreen(forms::Size screen) { screen_ = screen; }

  // --- the port --------------------------------------------------------------------------------

  std::shared_ptr<forms::FormWindow> MakeWindow(forms::Form& form) override;
  void RunModal(forms::Form& form) override;
  forms::Answer ShowMessage(const forms::Message& message, forms::Form* owner) override;
  std::optional<std::string> ShowInput(const std::string& prompt, const std::string& title,
                                       const std::string& text, forms::Form* owner) override;
  std::optional<forms::Colour> ChooseColour(forms::Form* owner) override;
  std::optional<std::string> ChooseFile(const forms::FileDialog& dialog,
                                        forms::Form* owner) override;
  std::string BrowseForFolder(const std::string& title, forms::Form* owner) override;
  void Beep() override { ++beeps_; }
  void SetMousePointer(forms::MousePointer pointer) override { pointer_ = pointer; }
  forms::MousePointer Pointer() const override { return pointer_; }
  forms::Size Screen() override { return screen_; }
  void ShowHelp(const std::string& file) override { helpFiles_.push_back(file); }

 private:
  friend class HeadlessWindow;
  static std::logic_error UnexpectedForm(const forms::Form& form);

  std::deque<std::function<void(forms::Form&)>> reactions_;
  std::deque<forms::Answer> answers_;
  std::deque<std::string> typedInputs_;
  std::deque<forms::Colour> colours_;
  std::deque<std::string> files_;
  std::deque<std::string> folders_;
  std::vector<forms::Message> messages_;
  std::vector<std::string> formsShown_;
  std::vector<Input> inputs_;
  std::vector<forms::FileDialog> fileDialogs_;
  std::vector<std::string> folderTitles_;
  std::vector<std::string> helpFiles_;
  std::size_t colourDialogs_ = 0;
  std::size_t beeps_ = 0;
  forms::MousePointer pointer_ = forms::MousePointer::Default;
  std::string focus_;
  forms::Size screen_{28800, 15600};  // 1920 by 1040 pixels at 96 to the inch
};

}  // namespace rangewerks::desktops
