// What all controls of a form have in common.
//
// A control is a member of its form's class, declared with its design: a form's header reads like
// the form.
//
//   forms::CommandButton cmdOK{*this, "cmdOK", {.place = {120, 600, 1215, 375}, .text = "OK"}};
//
// Properties hold what the form's code gave them last, whichever desktop shows the form. Using one
// loads the form when it isn't loaded. Unloading puts all of them back to the design.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/colour.h"
#include "forms/picture.h"

namespace rangewerks::forms {

class Control;
class Form;

/// A rectangle within the parent's inner area, in twips (1440 to an inch).
struct Place {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  friend bool operator==(const Place&, const Place&) = default;
};

enum class Alignment { Left, Right, Centre };

/// A control's properties: at design, and as they are now.
struct ControlProperties {
  Place place{};
  /// Caption or text. In a caption "&" marks the access key, unless `useMnemonic` is off; in a
  /// label the key goes to the next control in the tab order.
  std::string text{};
  bool useMnemonic = true;
  std::string toolTip{};
  std::string tag{};
  bool visible = true;
  bool enabled = true;
  /// The platform's own colours for the kind of control, unless given.
  Colour foreColor = SystemColour::kButtonText;
  Colour backColor = SystemColour::kButtonFace;
  bool bold = false;
  double fontSize = 0;  ///< in points; 0 is the form's
  Alignment alignment = Alignment::Left;
  Picture picture = Picture::None;
  bool value = false;      ///< of a check box: ticked
  bool isDefault = false;  ///< of a button: the Enter key presses it
  bool isCancel = false;   ///< of a button: the Escape key presses it
  bool multiLine = false;  ///< of a text box: several lines, with a scroll bar
  bool locked = false;     ///< of a text box: shown only, but can be selected and copied
};

/// What of a control has changed, for the window that shows it.
enum class Aspect { Place, Text, ToolTip, Visible, Enabled, Colours, Value, Picture, Content };

enum class ControlKind {
  Label,
  TextBox,
  CommandButton,
  CheckBox,
  Frame,
  Panel,
  PictureBox,
  Line,
  Calendar,
  TreeView,
  ListView,
  Grid,
};

/// What controls stand on: a form, a frame, a panel.
class Container {
 public:
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;

  /// The controls that stand directly on this, in the order of their declaration, which is the tab
  /// order.
  const std::vector<Control*>& Children() const { return children_; }
  virtual Form& OwningForm() = 0;
  /// Outer size in twips.
  virtual double get_Width() = 0;
  virtual double get_Height() = 0;

 protected:
  Container() = default;
  virtual ~Container() = default;

 private:
  friend class Control;
  std::vector<Control*> children_;
};

class Control {
 public:
  Control(Container& parent, ControlKind kind, std::string name, ControlProperties design);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  ControlKind Kind() const { return kind_; }
  const std::string& get_Name() const { return name_; }
  /// The container and the form that it stands on.
  Container& get_Parent() const { return parent_; }
  Form& OwningForm() const { return parent_.OwningForm(); }
  const std::string& get_Tag() const { return design_.tag; }

  double get_Left() const { return Now().place.left; }
  void let_Left(double value);
  double get_Top() const { return Now().place.top; }
  void let_Top(double value);
  double get_Width() const { return Now().place.width; }
  void let_Width(double value);
  double get_Height() const { return Now().place.height; }
  void let_Height(double value);
  /// Changes all four at once.
  void Move(const Place& place);

  /// What the form's code wants; a control on a hidden container isn't seen all the same.
  bool get_Visible() const { return Now().visible; }
  void let_Visible(bool value);
  /// A control on a disabled container can't be used all the same.
  bool get_Enabled() const { return Now().enabled; }
  void let_Enabled(bool value);
  const std::string& get_ToolTipText() const { return Now().toolTip; }
  void let_ToolTipText(const std::string& value);
  Colour get_ForeColor() const { return Now().foreColor; }
  void let_ForeColor(Colour value);
  Colour get_BackColor() const { return Now().backColor; }
  void let_BackColor(Colour value);
  /// Gives the control the keyboard, when it can take it.
  void SetFocus();

  /// All properties as they are, for the window that shows the control. Doesn't load the form.
  const ControlProperties& Properties() const { return now_; }
  /// Whether a person could see and use it now: itself and all that it stands on.
  bool IsShown() const;
  bool IsUsable() const;

 protected:
  /// The properties, with the form loaded.
  const ControlProperties& Now() const;
  /// Loads the form and gives the properties for a change, which Changed then reports.
  ControlProperties& Live();
  void Changed(Aspect aspect);
  /// Writes a property and reports it, when it isn't the same already.
  template <class T>
  void Write(T ControlProperties::*property, const T& value, Aspect aspect) {
    ControlProperties& now = Live();
    if (now.*property == value) return;
    now.*property = value;
    Changed(aspect);
  }
  /// Takes over what a person has done; nothing is reported back to the window.
  ControlProperties& FromPerson() { return now_; }
  /// Back to the design; classes with content of their own empty it.
  virtual void Reset() { now_ = design_; }

 private:
  friend class Form;
  Container& parent_;
  ControlKind kind_;
  std::string name_;
  ControlProperties design_;
  ControlProperties now_;
};

}  // namespace rangewerks::forms
