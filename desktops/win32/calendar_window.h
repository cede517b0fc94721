// One month, of which a day is chosen. Private to this folder's sources.
#pragma once

#include "desktops/win32/control_window.h"
#include "forms/simple_controls.h"

namespace rangewerks::desktops {

class CalendarWindow final : public ControlWindow {
 public:
  CalendarWindow(Surroundings& around, forms::Calendar& calendar, HWND parent, int id);
  std::optional<LRESULT> Notified(NMHDR& notification) override;
  bool TakeKey(const MSG& message) override;

 protected:
  void ApplyPlace() override;
  void ApplyContent() override;

 private:
  double ShownDay() const;
  void Clicked(const SYSTEMTIME& day);

  forms::Calendar& calendar_;
  std::optional<double> clickedDay_;  // of the last click
  LONG clickedAt_ = 0;                // in milliseconds, as messages tell it
};

}  // namespace rangewerks::desktops
