// What controls stand on inside a form: panels and frames. Private to this folder's sources.
#pragma once

#include "desktops/win32/control_window.h"

namespace rangewerks::desktops {

/// A plain ground. What its controls report goes up to the form.
class PanelWindow : public ControlWindow {
 public:
  PanelWindow(Surroundings& around, forms::Control& panel, HWND parent, int id);
  /// Fills the ground that shows between the controls.
  void Erase(HDC target) const;

 protected:
  void ApplyText() override {}
};

/// A ground with the platform's border and caption around it.
class FrameWindow final : public PanelWindow {
 public:
  FrameWindow(Surroundings& around, forms::Control& frame, HWND parent, int id);

 protected:
  void ApplyPlace() override;
  void ApplyText() override;
  void ApplyFont() override;
  void ApplyEnabled() override;

 private:
  HWND box_;
};

}  // namespace rangewerks::desktops
