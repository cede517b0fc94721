#include "browse/clsBrowseDate.h"

#include <cmath>

#include "automation/conversions.h"
#include "automation/text.h"
#include "browse/frmBrowseCalendar.h"
#include "errors/attempt.h"
#include "errors/procedure.h"

namespace rangewerks {

using automation::Date;
using automation::Locale;

Date clsBrowseDate::InitialDate() const {
  const std::string text = ToString(activeCell_.get_Value(), Locale::Current());
  if (automation::Trim(text).empty()) return {std::floor(system_->Now().serial)};
  Date date;
  if (!Attempt([&] { date = ToDate(activeCell_.get_Value(), Locale::Current()); })) {
    date = system_->Now();
  }
  return date;
}

void clsBrowseDate::BrowseDate() {
  Procedure("BrowseDate of Class Module clsBrowseDate Line#:", [&](Line& at) {
    at();
    auto& form = toolkit_->Shared<frmBrowseCalendar>();
    at();
    form.let_InitialDate(InitialDate());
    at();
    form.Show(forms::Modality::Modal);
    at();
    if (form.get_IsDateSelected()) activeCell_.let_Default(form.get_SelectedDate());
  });
}

const automation::MemberTable& clsBrowseDate::Members() const {
  using C = clsBrowseDate;
  static const char* const kActiveCell = "The cell whose date is chosen.";
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("clsBrowseDate")
          .Get(1, "ActiveCell", &C::get_ActiveCell, kActiveCell)
          .Set(1, "ActiveCell", &C::set_ActiveCell, kActiveCell)
          .Method(2, "BrowseDate", &C::BrowseDate, {},
                  "Lets the person choose the cell's date from a calendar.");
  return table;
}

}  // namespace rangewerks
