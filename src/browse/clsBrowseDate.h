// The browse of a date cell: a calendar, from which the chosen date is written to the cell.
//
//   clsBrowseDate browse(toolkit, system);
//   browse.set_ActiveCell(cell);
//   browse.BrowseDate();
#pragma once

#include <memory>

#include "automation/member_table.h"
#include "forms/toolkit.h"
#include "platform/excel.h"
#include "platform/system.h"

namespace rangewerks {

class clsBrowseDate final : public automation::AutomationClass {
 public:
  clsBrowseDate(std::shared_ptr<forms::Toolkit> toolkit,
                std::shared_ptr<const platform::System> system)
      : toolkit_(std::move(toolkit)), system_(std::move(system)) {}

  const automation::MemberTable& Members() const override;

  /// The cell that is read and written.
  const excel::Range& get_ActiveCell() const { return activeCell_; }
  void set_ActiveCell(const excel::Range& value) { activeCell_ = value; }

  /// Shows the calendar on the date in the cell, or on today when it holds none, and returns when
  /// the person has closed it. The cell changes only when a date was picked.
  void BrowseDate();

 private:
  automation::Date InitialDate() const;

  std::shared_ptr<forms::Toolkit> toolkit_;
  std::shared_ptr<const platform::System> system_;
  excel::Range activeCell_;
};

}  // namespace rangewerks
