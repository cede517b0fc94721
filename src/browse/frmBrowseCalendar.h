// A calendar in which a date is picked.
//
//   auto& calendar = toolkit.Shared<frmBrowseCalendar>();
//   calendar.let_InitialDate(today);
//   calendar.Show(forms::Modality::Modal);
//   if (calendar.get_IsDateSelected()) Use(calendar.get_SelectedDate());
#pragma once

#include "automation/variant.h"
#include "forms/form.h"
#include "forms/simple_controls.h"

namespace rangewerks {

class frmBrowseCalendar final : public forms::Form {
 public:
  explicit frmBrowseCalendar(forms::Toolkit& toolkit);

  /// What the calendar shows first, given before the form is shown. A time within the day is left
  /// out.
  automation::Date get_InitialDate() const { return initialDate_; }
  void let_InitialDate(automation::Date value) { initialDate_ = value; }
  /// The day that was picked last. Readable after the form has gone.
  automation::Date get_SelectedDate() const { return selectedDate_; }
  /// Whether a day was picked since the form was loaded. Readable after it has gone.
  bool get_IsDateSelected() const { return isDateSelected_; }

  forms::Calendar TDBCalendar1{*this, "TDBCalendar1", {.place = {120, 120, 3900, 2700}}};
  forms::CommandButton cmdOK{*this,
                             "cmdOK",
                             {.place = {1350, 2940, 1275, 420},
                              .text = "OK",
                              .toolTip = "Close",
                              .picture = forms::Picture::Ok,
                              .isDefault = true}};
  forms::CommandButton cmdCancel{*this,
                                 "cmdCancel",
                                 {.place = {2745, 2940, 1275, 420},
                                  .text = "Cancel",
                                  .toolTip = "Cancel Changes",
                                  .picture = forms::Picture::Cancel,
                                  .isCancel = true}};

 private:
  void Form_Load() override;
  void PickDate();

  automation::Date initialDate_;
  automation::Date selectedDate_;
  bool isDateSelected_ = false;
};

}  // namespace rangewerks
