// Which window shows which kind of control.
#include "desktops/win32/calendar_window.h"
#include "desktops/win32/container_window.h"
#include "desktops/win32/grid_window.h"
#include "desktops/win32/list_window.h"
#include "desktops/win32/simple_windows.h"
#include "desktops/win32/tree_window.h"

namespace rangewerks::desktops {

namespace {

template <class Window, class Control>
std::unique_ptr<ControlWindow> Make(Surroundings& around, forms::Control& control, HWND parent,
                                    int id) {
  // Each kind of control is a class of its own.
  return std::make_unique<Window>(around, static_cast<Control&>(control), parent, id);
}

}  // namespace

std::unique_ptr<ControlWindow> MakeControlWindow(Surroundings& around, forms::Control& control,
                                                 HWND parent, int id) {
  const auto maker = [&] {
    switch (control.Kind()) {
      case forms::ControlKind::Label:
        return Make<LabelWindow, forms::Label>;
      case forms::ControlKind::TextBox:
        return Make<TextBoxWindow, forms::TextBox>;
      case forms::ControlKind::CommandButton:
        return Make<ButtonWindow, forms::CommandButton>;
      case forms::ControlKind::CheckBox:
        return Make<CheckBoxWindow, forms::CheckBox>;
      case forms::ControlKind::Frame:
        return Make<FrameWindow, forms::Control>;
      case forms::ControlKind::PictureBox:
        return Make<PictureBoxWindow, forms::Control>;
      case forms::ControlKind::Line:
        return Make<LineWindow, forms::Control>;
      case forms::ControlKind::Calendar:
        return Make<CalendarWindow, forms::Calendar>;
      case forms::ControlKind::TreeView:
        return Make<TreeWindow, forms::TreeView>;
      case forms::ControlKind::ListView:
        return Make<ListWindow, forms::ListView>;
      case forms::ControlKind::Grid:
        return Make<GridWindow, forms::Grid>;
      case forms::ControlKind::Panel:
        break;
    }
    return Make<PanelWindow, forms::Control>;
  }();
  return maker(around, control, parent, id);
}

}  // namespace rangewerks::desktops
