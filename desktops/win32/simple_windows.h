// The windows of the controls that hold a text or a value. Private to this folder's sources.
#pragma once

#include "desktops/win32/control_window.h"
#include "desktops/win32/pictures.h"
#include "forms/simple_controls.h"

namespace rangewerks::desktops {

class LabelWindow final : public ControlWindow {
 public:
  LabelWindow(Surroundings& around, forms::Label& label, HWND parent, int id);
  void Commanded(WORD code) override;

 private:
  forms::Label& label_;
};

class TextBoxWindow final : public ControlWindow {
 public:
  TextBoxWindow(Surroundings& around, forms::TextBox& box, HWND parent, int id);
  void Commanded(WORD code) override;
  HBRUSH Paint(HDC target) override;

 private:
  forms::TextBox& box_;
};

class ButtonWindow final : public ControlWindow {
 public:
  ButtonWindow(Surroundings& around, forms::CommandButton& button, HWND parent, int id);
  void Commanded(WORD code) override;

 protected:
  void ApplyPicture() override;

 private:
  forms::CommandButton& button_;
  OwnedIcon icon_;
};

class CheckBoxWindow final : public ControlWindow {
 public:
  CheckBoxWindow(Surroundings& around, forms::CheckBox& box, HWND parent, int id);
  void Commanded(WORD code) override;

 protected:
  void ApplyValue() override;

 private:
  forms::CheckBox& box_;
};

class PictureBoxWindow final : public ControlWindow {
 public:
  PictureBoxWindow(Surroundings& around, forms::Control& box, HWND parent, int id);

 protected:
  void ApplyPicture() override;

 private:
  OwnedIcon icon_;
};

class LineWindow final : public ControlWindow {
 public:
  LineWindow(Surroundings& around, forms::Control& line, HWND parent, int id);

 protected:
  void ApplyPlace() override;
};

}  // namespace rangewerks::desktops
