// The dialog that asks for the number of rows that all detail ranges are to have.
//
//   auto& dialog = toolkit.Shared<frmResizeRanges>();
//   dialog.let_AllowedNumberOfRows(limit);
//   dialog.Show(forms::Modality::Modal);
//   if (dialog.get_OKSelected()) Resize(dialog.get_ResizeRows());
#pragma once

#include <cstdint>

#include "forms/form.h"
#include "forms/simple_controls.h"

namespace rangewerks {

class frmResizeRanges final : public forms::Form {
 public:
  explicit frmResizeRanges(forms::Toolkit& toolkit);

  /// The most rows that are accepted, set before the dialog is shown.
  std::int32_t get_AllowedNumberOfRows() const { return allowedNumberOfRows_; }
  void let_AllowedNumberOfRows(std::int32_t value) { allowedNumberOfRows_ = value; }
  /// The number accepted last. Readable after the form has gone.
  std::int32_t get_ResizeRows() const { return resizeRows_; }
  /// Whether a number was accepted since the form was loaded. Readable after it has gone.
  bool get_OKSelected() const { return okSelected_; }

  forms::Label lblPrompt{
      *this,
      "lblPrompt",
      {.place = {240, 240, 5040, 975},
       .text = "This option will delete and recreate all detail ranges, using the enter number of "
               "rows as the new number of rows.  Ranges will be recreated with current settings "
               "(colour, headings etc)"}};
  forms::TextBox txtResizeRows{*this, "txtResizeRows", {.place = {240, 1350, 1215, 285}}};
  forms::Label lblInvalid{*this, "lblInvalid", {.place = {1620, 1380, 3660, 225}}};
  forms::CommandButton cmdOK{*this,
                             "cmdOK",
                             {.place = {2610, 1830, 1275, 420},
                              .toolTip = "Close",
                              .picture = forms::Picture::Ok,
                              .isDefault = true}};
  forms::CommandButton cmdCancel{*this,
                                 "cmdCancel",
                                 {.place = {4005, 1830, 1275, 420},
                                  .text = "Cancel",
                                  .toolTip = "Cancel Changes",
                                  .picture = forms::Picture::Cancel,
                                  .isCancel = true}};

 private:
  void Form_Load() override { okSelected_ = false; }
  void txtResizeRows_Change();
  void cmdOK_Click();
  void cmdCancel_Click();

  std::int32_t allowedNumberOfRows_ = 0;
  std::int32_t resizeRows_ = 0;
  bool okSelected_ = false;
};

}  // namespace rangewerks
