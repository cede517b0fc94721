// The window of one control. It holds nothing of what the control holds: it shows it, and tells the
// control what the person does. Private to this folder's sources.
#pragma once

#include <windows.h>
// The common controls need what comes before.
#include <commctrl.h>

#include <memory>
#include <optional>
#include <unordered_map>

#include "desktops/win32/colours.h"
#include "desktops/win32/fonts.h"
#include "desktops/win32/tool_tips.h"
#include "forms/control.h"

namespace rangewerks::desktops {

class ControlWindow;

/// What the windows of one form share.
struct Surroundings {
  HWND form = nullptr;
  int dpi = 0;
  std::unique_ptr<Fonts> fonts{};
  Brushes brushes{};
  ToolTips toolTips{};
  /// Whose messages a window's are.
  std::unordered_map<HWND, ControlWindow*> owners{};
};

class ControlWindow {
 public:
  /// What kind of window to make, apart from what all have.
  struct Making {
    const wchar_t* className = nullptr;
    DWORD style = 0;
    DWORD extendedStyle = 0;
  };

  ControlWindow(Surroundings& around, forms::Control& control, HWND parent, int id,
                const Making& making);
  ControlWindow(const ControlWindow&) = delete;
  ControlWindow& operator=(const ControlWindow&) = delete;
  /// The window itself goes with the form's.
  virtual ~ControlWindow() = default;

  HWND Handle() const { return window_; }
  forms::Control& Shown() const { return control_; }
  int Id() const { return GetDlgCtrlID(window_); }

  /// Shows what of the control has changed.
  void Apply(forms::Aspect aspect);
  /// Shows all of it, after the window has been made or the resolution has changed.
  void ApplyAll();
  /// Whether the window takes input: what the control itself and all that it stands on say.
  virtual void ApplyEnabled();

  /// A notification in short form, such as BN_CLICKED.
  virtual void Commanded(WORD code);
  /// A notification with more in it. Nothing leaves the answer to Windows.
  virtual std::optional<LRESULT> Notified(NMHDR& notification);
  /// Sets the colours of text and ground before the window is painted, and gives the brush for the
  /// ground; null leaves it to Windows.
  virtual HBRUSH Paint(HDC target);
  /// A key before the form sees it; true takes it away.
  virtual bool TakeKey(const MSG& message);

 protected:
  Surroundings& Around() const { return around_; }
  /// Whether it is the code that changes the window now; its notifications tell nothing new then.
  bool IsApplying() const { return applying_ > 0; }

  virtual void ApplyPlace();
  virtual void ApplyText();
  virtual void ApplyFont();
  virtual void ApplyValue() {}
  virtual void ApplyPicture() {}
  virtual void ApplyContent() {}
  /// The colour of the ground: the control's own, or else that of what it stands on.
  forms::Colour Ground() const;
  int Pixels(double twips) const;

 private:
  class Applying;
  void ApplyVisible();
  void PassFocusOn() const;

  Surroundings& around_;
  forms::Control& control_;
  HWND window_;
  int applying_ = 0;
};

/// Makes the window that fits the kind of control. Raises an application-defined error when Windows
/// refuses.
std::unique_ptr<ControlWindow> MakeControlWindow(Surroundings& around, forms::Control& control,
                                                 HWND parent, int id);

}  // namespace rangewerks::desktops
