// The base of all forms.
//
//   class frmResizeRanges final : public forms::Form {
//    public:
//     explicit frmResizeRanges(forms::Toolkit& toolkit);
//     forms::TextBox txtResizeRows{*this, "txtResizeRows", {.place = {240, 1200, 1215, 285}}};
//     ...
//    private:
//     void Form_Load() override { oKSelected_ = false; }
//   };
//
// A form is loaded when it is first used: shown, or one of its own or its controls' properties
// touched. Closing unloads it: the window goes, and all properties return to the design. What a
// class keeps in members of its own stays readable.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/error.h"
#include "forms/control.h"
#include "forms/form_window.h"
#include "forms/toolkit.h"

namespace rangewerks::forms {

class MenuEntry;

enum class Modality { Modeless, Modal };
enum class Border {
  Fixed,     ///< a dialog: a title with a close button
  Sizable,   ///< and can be resized
  Embedded,  ///< none: the form is shown inside another program's window
};
enum class StartPosition { CentreOfScreen, Manual };

struct FormDesign {
  std::string caption{};
  /// The inner area, in twips. Width and Height of the form include title bar and borders.
  double innerWidth = 4800;
  double innerHeight = 3600;
  Border border = Border::Fixed;
  StartPosition position = StartPosition::CentreOfScreen;
  std::string fontName{};  ///< the system's message font when empty
  double fontSize = 0;     ///< in points; 0 is the size of the message font
};

class Form : public Container, public std::enable_shared_from_this<Form> {
 public:
  Form(Toolkit& toolkit, std::string name, FormDesign design);
  ~Form() override;

  const std::string& get_Name() const { return name_; }
  const FormDesign& Design() const { return design_; }
  Form& OwningForm() final { return *this; }
  Toolkit& Desktop() const { return *toolkit_; }

  std::string get_Caption();
  void let_Caption(const std::string& value);
  /// Outer place on the screen, in twips. Changing a size runs Form_Resize.
  double get_Left();
  void let_Left(double value);
  double get_Top();
  void let_Top(double value);
  double get_Width() override;
  void let_Width(double value);
  double get_Height() override;
  void let_Height(double value);
  void Move(const Place& place);
  /// The system's handle; 0 on a desktop without windows.
  std::intptr_t get_hWnd();
  /// Keeps the window above all others, or no longer.
  void SetTopMost(bool bTopMost);
  bool IsTopMost() const { return topMost_; }
  void SetFocus();

  /// Makes the window and runs Form_Load; without effect on a loaded form. What Form_Load raises
  /// goes to the caller, and the form isn't loaded then.
  void Load();
  /// Runs Form_Unload, closes the window and puts all properties back to the design; without effect
  /// on a form that isn't loaded.
  void Unload();
  bool IsLoaded() const { return state_ != State::NotLoaded; }
  /// Shown modally, the call returns when the form has been hidden or unloaded.
  void Show(Modality modality = Modality::Modeless);
  void Hide();
  bool IsVisible() const { return visible_; }

  /// For a form that stands inside another program's window: that window's handle, given before the
  /// form loads.
  void EmbedIn(std::intptr_t window) { embeddingWindow_ = window; }
  std::intptr_t EmbeddingWindow() const { return embeddingWindow_; }

  // --- for the window that shows the form ------------------------------------------------------

  const std::string& Caption() const { return caption_; }
  const Place& OuterPlace() const { return place_; }
  const std::vector<MenuEntry*>& MenuBar() const { return menuBar_; }
  FormWindow* Window() const { return window_.get(); }
  /// The person has moved or resized the window.
  void PersonMoved(const Place& place);
  /// The person has closed the window.
  void PersonClosed();
  /// Runs a handler of a person's action. An error that it doesn't handle is told to the person.
  template <class Handler>
  void Handle(Handler&& handler) {
    const std::shared_ptr<Form> keep = weak_from_this().lock();
    try {
      handler();
    } catch (const automation::Error& failure) {
      toolkit_->ReportUnhandled(failure, IsVisible() ? this : nullptr);
    }
  }
  /// Takes the window away without any event: the form or its desktop is going.
  void DropWindow();

 protected:
  virtual void Form_Load() {}
  /// The person closes the window by its title bar.
  virtual void Form_QueryUnload() {}
  virtual void Form_Unload() {}
  virtual void Form_Resize() {}

 private:
  friend class MenuEntry;
  enum class State { NotLoaded, Loaded, Unloading };

  void Reset();
  void TakeDesignSize();

  Toolkit* toolkit_;
  std::string name_;
  FormDesign design_;
  std::string caption_;
  Place place_;
  bool topMost_ = false;
  bool visible_ = false;
  bool hasBeenShown_ = false;
  State state_ = State::NotLoaded;
  std::intptr_t embeddingWindow_ = 0;
  std::vector<MenuEntry*> menuBar_;
  std::shared_ptr<FormWindow> window_;
  std::shared_ptr<void> keeper_;
};

}  // namespace rangewerks::forms
