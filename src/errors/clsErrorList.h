// Collects what is wrong with a sheet while it is examined row by row, and shows it beside the
// spreadsheet.
//
//   auto list = std::make_shared<clsErrorList>(toolkit, box);
//   list->set_KeyRange(ranges->GetRange("nominal_code"));
//   list->Add(3, "No such nominal code", 0, "");
//   list->DisplayList();
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "automation/dispatch.h"
#include "automation/member_table.h"
#include "errors/ErrorMessageBox.h"
#include "errors/error_rows.h"
#include "errors/frmErrorListDisplay.h"
#include "forms/toolkit.h"
#include "platform/excel.h"

namespace rangewerks {

class clsErrorList final : public automation::AutomationClass {
 public:
  /// `box` shows what fails while the person uses the list.
  clsErrorList(std::shared_ptr<forms::Toolkit> toolkit, std::shared_ptr<ErrorMessageBox> box);

  const automation::MemberTable& Members() const override;
  /// Event: FormClosed, without arguments, when the person has closed the list.
  automation::Connection Connect(automation::EventHandler handler) override {
    return events_.Connect(std::move(handler));
  }

  /// The number of entries added as errors, and as warnings.
  std::int32_t get_ErrorCount() const { return errorCount_; }
  std::int32_t get_WarningCount() const { return warningCount_; }
  /// The range whose first cell lies in row 1 as the caller counts; may be none.
  const excel::Range& get_KeyRange() const { return keyRange_; }
  void set_KeyRange(const excel::Range& value) { keyRange_ = value; }

  /// Takes all entries out.
  void ClearList();
  /// The same.
  void ResetList();
  /// Adds an entry for a row counted from 1 at KeyRange, or for no row when `SourceRow` is 0.
  /// Raises 91 for a row without KeyRange, and 6 when the sheet's row doesn't fit into 32 bits.
  /// `Number` and `Source` are kept nowhere.
  void Add(std::int32_t SourceRow, const std::string& Description, std::int32_t Number,
           const std::string& Source, bool bIsWarning = false);
  /// The same with what an error object tells: Description, Number and Source.
  void AddError(std::int32_t lLineNumber, const automation::Object& Err, bool bIsWarning = false);
  /// Shows the list above all windows and returns at once; an empty one is told in a message.
  void DisplayList();

  /// The rows that are shown.
  const ErrorRows& Rows() const { return *rows_; }
  /// The form that shows them; it may be closed.
  frmErrorListDisplay& Display() const { return *display_; }

 private:
  automation::Variant SheetRow(std::int32_t sourceRow) const;

  std::shared_ptr<forms::Toolkit> toolkit_;
  std::shared_ptr<ErrorRows> rows_ = std::make_shared<ErrorRows>();
  excel::Range keyRange_;
  std::int32_t errorCount_ = 0;
  std::int32_t warningCount_ = 0;
  std::shared_ptr<frmErrorListDisplay> display_;
  automation::EventSource events_;
  automation::Connection displayClosed_;  // goes first: the form may outlive the list
};

}  // namespace rangewerks
