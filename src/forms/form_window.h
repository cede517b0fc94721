// The window that shows a loaded form. The form tells it what has changed; it tells the form and
// its controls, by their Person… members, what a person has done.
#pragma once

#include <cstdint>

namespace rangewerks::forms {

class Control;
class ListItem;
class ListView;
class MenuEntry;
class TreeNode;
class TreeView;
enum class Aspect;

/// What of a form has changed.
enum class FormAspect { Caption, Place, TopMost };

class FormWindow {
 public:
  FormWindow() = default;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;
  /// Takes the window off the desktop with all that belongs to it.
  virtual ~FormWindow() = default;

  virtual void Show() = 0;
  virtual void Hide() = 0;
  virtual void FormChanged(FormAspect aspect) = 0;
  virtual void ControlChanged(Control& control, Aspect aspect) = 0;
  /// A caption, check mark or state of a menu entry has changed.
  virtual void MenuChanged(MenuEntry& entry) = 0;
  /// A node has been added, or its text or colour has changed.
  virtual void NodeChanged(TreeView& tree, TreeNode& node) = 0;
  /// An item has been added, or a text, colour or weight of it has changed.
  virtual void ItemChanged(ListView& list, ListItem& item) = 0;
  /// Gives the keyboard to a control, or to the form's window.
  virtual void FocusOn(Control& control) = 0;
  virtual void FocusOnForm() = 0;

  /// What the window has around its inner area, in twips: title bar and borders.
  struct Frame {
    double width = 0;
    double height = 0;
  };
  virtual Frame FrameSize() const = 0;
  /// The system's handle of the window; 0 on a desktop without any.
  virtual std::intptr_t Handle() const = 0;
};

}  // namespace rangewerks::forms
