#include "browse/frmBrowseCalendar.h"

namespace rangewerks {

frmBrowseCalendar::frmBrowseCalendar(forms::Toolkit& toolkit)
    : Form(toolkit, "frmBrowseCalendar",
           {.caption = "Select Date", .innerWidth = 4140, .innerHeight = 3480}) {
  TDBCalendar1.DblClick = [this] { PickDate(); };
  cmdOK.Click = [this] { PickDate(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmBrowseCalendar::Form_Load() {
  isDateSelected_ = false;
  TDBCalendar1.let_Date(initialDate_);
}

void frmBrowseCalendar::PickDate() {
  isDateSelected_ = true;
  selectedDate_ = TDBCalendar1.get_Date();
  Unload();
}

}  // namespace rangewerks
