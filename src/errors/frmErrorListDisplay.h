// The list of errors beside the spreadsheet: picking a line selects the sheet row that it speaks
// of.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "automation/dispatch.h"
#include "errors/ErrorMessageBox.h"
#include "errors/error_rows.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/simple_controls.h"
#include "platform/excel.h"

namespace rangewerks {

/// Shows the rows themselves, not a copy. It lives by itself while it is loaded, whatever becomes
/// of the list that has shown it.
class frmErrorListDisplay final : public forms::Form {
 public:
  /// `box` shows what fails in the form's handlers.
  frmErrorListDisplay(forms::Toolkit& toolkit, std::shared_ptr<ErrorMessageBox> box);

  const excel::Range& get_KeyRange() const { return keyRange_; }
  void set_KeyRange(const excel::Range& value) { keyRange_ = value; }
  const std::shared_ptr<ErrorRows>& get_ErrorList() const { return errorList_; }
  void set_ErrorList(const std::shared_ptr<ErrorRows>& value) { errorList_ = value; }
  /// Whether the person has clicked in the grid since the form was loaded.
  bool get_bGridClicked() const { return bGridClicked_; }
  /// Selects the sheet row of the grid's current line, unless that is the first row of KeyRange or
  /// no row at all.
  void SelectLine();

  /// Raised once, without arguments, when the form has been closed.
  automation::Connection ConnectClosed(automation::EventHandler handler) {
    return closed_.Connect(std::move(handler));
  }

  forms::Panel C1Elastic1{*this, "C1Elastic1", {.place = {0, 0, 6600, 4200}}};
  forms::Label lblHelp{C1Elastic1,
                       "lblHelp",
                       {.place = {120, 120, 6360, 420},
                        .text = "List of Errors below.  Select one to highlight the line on the "
                                "spreadsheet"}};
  forms::Grid TDBGridErrors{
      C1Elastic1,
      "TDBGridErrors",
      {.place = {120, 600, 6360, 3480}},
      {{.source = ErrorRows::kSheetRow, .heading = "Row", .width = 500},
       {.source = ErrorRows::kIsWarning, .width = 450, .picture = &PictureOf},
       {.source = ErrorRows::kFixed, .heading = "Fixed?", .width = 620, .locked = false},
       {.source = ErrorRows::kDescription, .heading = "Error"}}};

 private:
  void Form_Load() override;
  void Form_Resize() override;
  void Form_Unload() override;
  void TDBGridErrors_RowColChange();
  static forms::Picture PictureOf(const automation::Variant& isWarning);

  std::shared_ptr<ErrorMessageBox> box_;
  excel::Range keyRange_;
  std::shared_ptr<ErrorRows> errorList_;
  bool bGridClicked_ = false;
  /// The sizer's controls as designed.
  std::vector<std::pair<forms::Control*, forms::Place>> designed_;
  automation::EventSource closed_;
};

}  // namespace rangewerks
