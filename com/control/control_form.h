// The form that is the window of a control: inside the container's window while the control is
// active there, otherwise in a hidden place of its own, so that it keeps what it shows.
#pragma once

#include <windows.h>

#include <string>

#include "forms/form.h"

namespace rangewerks::com {

class ControlForm : public forms::Form {
 public:
  /// Its size at first, in twips.
  ControlForm(forms::Toolkit& toolkit, std::string name, double width, double height);
  ~ControlForm() override;

  /// The form's window. Loads the form; raises its failure when no window can be made.
  HWND Window();
  /// Shows it inside a window, at a place in that window's pixels.
  void StandIn(HWND container, const RECT& place);
  /// Takes it back into its own hidden place.
  void Rest();

 private:
  HWND restingPlace_;
};

}  // namespace rangewerks::com
