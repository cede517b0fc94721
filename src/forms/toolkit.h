// What forms ask of the windowing system: one implementation for each desktop, picked by the
// outermost code.
//
// All of it runs on one thread, the one of the host's user interface.
#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <utility>
#include <vector>

#include "forms/control.h"
#include "forms/form_window.h"

namespace rangewerks::forms {

class Form;

/// A message box. Flags add up: a set of buttons, an icon, the button that Enter presses.
struct Message {
  static constexpr std::int32_t kOkOnly = 0;
  static constexpr std::int32_t kOkCancel = 1;
  static constexpr std::int32_t kYesNoCancel = 3;
  static constexpr std::int32_t kYesNo = 4;
  static constexpr std::int32_t kCritical = 16;
  static constexpr std::int32_t kQuestion = 32;
  static constexpr std::int32_t kExclamation = 48;
  static constexpr std::int32_t kInformation = 64;
  static constexpr std::int32_t kSecondButton = 256;  ///< the second button is the default one
  static constexpr std::int32_t kForeground = 65536;

  std::string text{};
  std::int32_t flags = kOkOnly;
  std::string title{};  ///< the product's name when empty
};

/// Which button of a message box was pressed.
enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// What Enter presses in a message box with these flags.
Answer DefaultAnswer(std::int32_t flags);

/// The common dialog for files.
struct FileDialog {
  bool save = false;
  std::string title{};
  std::string file{};              ///< the name to begin with
  std::string defaultExtension{};  ///< without a point; added to a name without one
  /// Pairs of a description and its patterns, such as "Definitions (*.def)" and "*.def".
  std::vector<std::pair<std::string, std::string>> filters{};
  bool mustExist = false;        ///< when opening
  bool confirmReplacing = true;  ///< when saving
};

enum class MousePointer { Default, Hourglass };

struct Size {
  double width = 0;
  double height = 0;
};

class Toolkit {
 public:
  /// The title of a message box that is given none.
  static constexpr const char* kProductName = "Rangewerks";

  Toolkit();
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;
  virtual ~Toolkit();

  /// Makes the hidden window of a form that is being loaded, from its controls as they are.
  virtual std::shared_ptr<FormWindow> MakeWindow(Form& form) = 0;
  /// Returns when the form, which has just been shown, is no longer visible. Meanwhile no other
  /// window of this thread takes input.
  virtual void RunModal(Form& form) = 0;

  /// `owner` may be null in all of these.
  virtual Answer ShowMessage(const Message& message, Form* owner) = 0;
  /// The text typed, or nothing when the person cancelled.
  virtual std::optional<std::string> ShowInput(const std::string& prompt, const std::string& title,
                                               const std::string& text, Form* owner) = 0;
  /// The colour chosen, 0xBBGGRR, or nothing.
  virtual std::optional<Colour> ChooseColour(Form* owner) = 0;
  /// The full path of the file chosen, or nothing.
  virtual std::optional<std::string> ChooseFile(const FileDialog& dialog, Form* owner) = 0;
  /// The full path of the folder chosen, or an empty text.
  virtual std::string BrowseForFolder(const std::string& title, Form* owner) = 0;
  virtual void Beep() = 0;
  virtual void SetMousePointer(MousePointer pointer) = 0;
  /// What SetMousePointer was given last, for code that puts it back.
  virtual MousePointer Pointer() const = 0;
  /// The screen that the person works on, up to the bars of the desktop at its right and lower
  /// edges, in twips.
  virtual Size Screen() = 0;
  /// Opens a help file.
  virtual void ShowHelp(const std::string& file) = 0;

  /// A failure that nobody has handled, from a handler of a person's action. There is no caller to
  /// tell, so the person is told.
  void ReportUnhandled(const std::exception& failure, Form* owner);

  /// The one shared instance of a class of forms, made when it is first asked for.
  template <class F, class... Arguments>
  F& Shared(Arguments&&... arguments) {
    std::shared_ptr<Form>& form = shared_[std::type_index(typeid(F))];
    if (!form) form = std::make_shared<F>(*this, std::forward<Arguments>(arguments)...);
    return static_cast<F&>(*form);
  }

  /// Each loaded form holds what this makes for as long as it is loaded: what must stay in memory
  /// while the person sees a window.
  void KeepWhileLoaded(std::function<std::shared_ptr<void>()> keeper) {
    keeper_ = std::move(keeper);
  }
  std::shared_ptr<void> Keeper() const { return keeper_ ? keeper_() : nullptr; }

  /// A loaded form lives even when nobody else holds it.
  void KeepAlive(std::shared_ptr<Form> form) { loaded_.push_back(std::move(form)); }
  /// What KeepAlive was given, or null.
  std::shared_ptr<Form> LetGoOf(const Form& form);

 protected:
  /// Takes all windows away and drops the forms; a desktop calls it while it can still close
  /// windows.
  void DropForms();

 private:
  std::vector<std::shared_ptr<Form>> loaded_;
  std::unordered_map<std::type_index, std::shared_ptr<Form>> shared_;
  std::function<std::shared_ptr<void>()> keeper_;
};

/// A message box without an owner.
Answer MsgBox(Toolkit& toolkit, const std::string& text, std::int32_t flags = Message::kOkOnly,
              const std::string& title = {});

}  // namespace rangewerks::forms
