// The controls that hold a text or a value.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "automation/variant.h"
#include "forms/control.h"

namespace rangewerks::forms {

/// A text that can't be typed in. Long texts wrap; CR LF begins a new line.
class Label final : public Control {
 public:
  Label(Container& parent, std::string name, ControlProperties design)
      : Control(parent, ControlKind::Label, std::move(name), std::move(design)) {}

  const std::string& get_Caption() const { return Now().text; }
  void let_Caption(const std::string& value) {
    Write(&ControlProperties::text, value, Aspect::Text);
  }

  std::function<void()> DblClick;
  void PersonDoubleClicked();
};

class TextBox final : public Control {
 public:
  TextBox(Container& parent, std::string name, ControlProperties design);

  const std::string& get_Text() const { return Now().text; }
  void let_Text(const std::string& value);

  /// The text has become another one, by the person or by code.
  std::function<void()> Change;
  void PersonTyped(const std::string& text);
};

class CommandButton final : public Control {
 public:
  CommandButton(Container& parent, std::string name, ControlProperties design)
      : Control(parent, ControlKind::CommandButton, std::move(name), std::move(design)) {}

  const std::string& get_Caption() const { return Now().text; }
  void let_Caption(const std::string& value) {
    Write(&ControlProperties::text, value, Aspect::Text);
  }

  std::function<void()> Click;
  void PersonClicked();
};

class CheckBox final : public Control {
 public:
  CheckBox(Container& parent, std::string name, ControlProperties design)
      : Control(parent, ControlKind::CheckBox, std::move(name), std::move(design)) {}

  /// Ticked or not. Setting it by code runs no handler.
  bool get_Value() const { return Now().value; }
  void let_Value(bool value) { Write(&ControlProperties::value, value, Aspect::Value); }

  /// The person has ticked it or taken the tick off; Value is the new state.
  std::function<void()> Click;
  void PersonClicked();
};

/// A border with a caption around the controls that stand on it.
class Frame final : public Control, public Container {
 public:
  Frame(Container& parent, std::string name, ControlProperties design)
      : Control(parent, ControlKind::Frame, std::move(name), std::move(design)) {}

  Form& OwningForm() override { return Control::OwningForm(); }
  double get_Width() override { return Control::get_Width(); }
  double get_Height() override { return Control::get_Height(); }
  const std::string& get_Caption() const { return Now().text; }
  void let_Caption(const std::string& value) {
    Write(&ControlProperties::text, value, Aspect::Text);
  }
};

/// The base of a control that is made of others: a part of a form, without a border of its own.
class Panel : public Control, public Container {
 public:
  Panel(Container& parent, std::string name, ControlProperties design)
      : Control(parent, ControlKind::Panel, std::move(name), std::move(design)) {}

  Form& OwningForm() override { return Control::OwningForm(); }
  double get_Width() override { return Control::get_Width(); }
  double get_Height() override { return Control::get_Height(); }
};

class PictureBox final : public Control {
 public:
  PictureBox(Container& parent, std::string name, ControlProperties design)
      : Control(parent, ControlKind::PictureBox, std::move(name), std::move(design)) {}
};

/// A dividing line along the upper edge of its place.
class DividingLine final : public Control {
 public:
  DividingLine(Container& parent, std::string name, ControlProperties design)
      : Control(parent, ControlKind::Line, std::move(name), std::move(design)) {}
};

/// One month, of which a day is chosen.
class Calendar final : public Control {
 public:
  Calendar(Container& parent, std::string name, ControlProperties design)
      : Control(parent, ControlKind::Calendar, std::move(name), std::move(design)) {}

  /// The chosen day, without a time. Unset is day 0.
  automation::Date get_Date() const;
  void let_Date(automation::Date value);
  /// For the window that shows it.
  automation::Date Day() const { return day_; }

  std::function<void()> DblClick;
  void PersonChose(automation::Date day);
  void PersonDoubleClicked();

 protected:
  void Reset() override;

 private:
  automation::Date day_{};
};

}  // namespace rangewerks::forms
