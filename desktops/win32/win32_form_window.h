// The window of one form. Private to this folder's sources.
//
// A form may be unloaded in the middle of its own handler, that is while one of its windows is at
// work further up the stack. So the form holds the window through Make's pointer, which closes it,
// and what is closed stays in memory, hidden, until nothing of it is at work any more.
#pragma once

#include <windows.h>

#include <exception>
#include <memory>
#include <optional>
#include <vector>

#include "desktops/win32/control_window.h"
#include "desktops/win32/keyboard_hook.h"
#include "desktops/win32/menu_bar.h"
#include "desktops/win32/modal_loop.h"
#include "desktops/win32/pictures.h"
#include "desktops/win32/visual_styles.h"
#include "desktops/win32/win32_desktop.h"
#include "desktops/win32/window_classes.h"
#include "forms/form.h"
#include "forms/simple_controls.h"

namespace rangewerks::desktops {

class Win32FormWindow final : public forms::FormWindow,
                              public KeyTaker,
                              public std::enable_shared_from_this<Win32FormWindow> {
 public:
  /// The hidden window of a form. Letting go of it closes it at once.
  static std::shared_ptr<forms::FormWindow> Make(Win32Desktop& desktop,
                                                 std::shared_ptr<const VisualStyles> styles,
                                                 forms::Form& form);
  Win32FormWindow(Win32Desktop& desktop, std::shared_ptr<const VisualStyles> styles,
                  forms::Form& form);
  ~Win32FormWindow() override;

  void Show() override;
  void Hide() override;
  void FormChanged(forms::FormAspect aspect) override;
  void ControlChanged(forms::Control& control, forms::Aspect aspect) override;
  void MenuChanged(forms::MenuEntry& entry) override;
  void NodeChanged(forms::TreeView& tree, forms::TreeNode& node) override;
  void ItemChanged(forms::ListView& list, forms::ListItem& item) override;
  void FocusOn(forms::Control& control) override;
  void FocusOnForm() override;
  Frame FrameSize() const override;
  std::intptr_t Handle() const override { return reinterpret_cast<std::intptr_t>(window_); }

  bool TakeKey(MSG& message) override;
  /// Returns when the form is hidden or closed. False when the thread is to end.
  bool RunModal();

 private:
  class AtWork;
  class OwnChange;

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
  LRESULT Receive(HWND window, UINT message, WPARAM first, LPARAM second);
  std::optional<LRESULT> Answer(UINT message, WPARAM first, LPARAM second);
  std::optional<LRESULT> AnswerDialog(UINT message, WPARAM first, LPARAM second);
  std::optional<LRESULT> AnswerControls(UINT message, WPARAM first, LPARAM second);
  std::optional<LRESULT> Notify(NMHDR& notification);
  std::optional<LRESULT> Command(WPARAM first, HWND from);
  std::optional<LRESULT> Paint(UINT message, HDC target, HWND of) const;
  void Destroyed();
  void Tell(const std::exception& failure);

  // --- how it is made and how it goes
  void MakeAll();
  void MakeControls(const forms::Container& container, HWND parent);
  DWORD Style() const;
  DWORD ExtendedStyle() const;
  void Close();
  /// Takes the window away unless something of it is at work.
  void TryDestroy();
  void EndModal();

  // --- where it stands
  void ApplyPlace();
  void ApplyTopMost();
  void ReportPlace();
  void ChangeResolution(int dpi, const RECT& place);

  // --- the keyboard
  ControlWindow* WindowOf(const forms::Control& control) const;
  ControlWindow* OwnerOf(HWND window) const;
  bool IsUsable(const ControlWindow& window) const;
  ControlWindow* FindButton(bool forms::ControlProperties::*role) const;
  bool PressByEnter(HWND focus);
  void Press(const ControlWindow& button);
  void MoveFocus(bool back);
  void GiveFocus(HWND window);
  void RestoreFocus();

  Win32Desktop& desktop_;
  forms::Form& form_;
  std::shared_ptr<const VisualStyles> styles_;
  std::shared_ptr<void> keeper_;  // this code stays in memory as long as the window
  WindowClasses classes_;
  Surroundings around_;
  HWND window_ = nullptr;
  std::optional<KeyRegistration> keys_;
  MenuBar menu_;
  OwnedIcon icon_;
  std::vector<std::unique_ptr<ControlWindow>> controls_;
  std::unordered_map<const forms::Control*, ControlWindow*> byControl_;
  std::vector<ModalLoop*> modals_;  // that wait for the form to go, the innermost last
  HWND previous_ = nullptr;         // the window that was active before the form was shown
  HWND focus_ = nullptr;            // which window of the form gets the keyboard with the form
  int atWork_ = 0;                  // calls of this object that are further up the stack
  int ownChanges_ = 0;              // what Windows reports meanwhile isn't the person's doing
  bool closed_ = false;
  bool endPosted_ = false;
  std::shared_ptr<Win32FormWindow> self_;  // closed, and waiting for its window to go
};

}  // namespace rangewerks::desktops
