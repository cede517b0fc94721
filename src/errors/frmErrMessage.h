// The box that tells a person of a failure: the message at once, number and source on demand.
#pragma once

#include <cstdint>
#include <memory>

#include "forms/form.h"
#include "forms/simple_controls.h"
#include "platform/system.h"

namespace rangewerks {

/// One shared instance, whose texts ErrorMessageBox gives. Each showing begins without the detail.
class frmErrMessage final : public forms::Form {
 public:
  /// `system` starts the mail program.
  frmErrMessage(forms::Toolkit& toolkit, std::shared_ptr<const platform::System> system);

  /// The height as designed, in twips.
  std::int32_t get_FullHeight() const { return fullHeight_; }
  /// Shows the detail, or hides it and makes the form smaller by it.
  void SetDetailVisible(bool bShow);

  forms::Label lblErr{
      *this,
      "lblErr",
      {.place = {120, 120, 6360, 240}, .text = "An Error has occurred.....", .bold = true}};
  forms::TextBox txtMainMessage{
      *this,
      "txtMainMessage",
      {.place = {120, 420, 6360, 1200}, .multiLine = true, .locked = true}};
  forms::CommandButton cmdShowDetail{
      *this, "cmdShowDetail", {.place = {120, 1740, 1575, 375}, .text = "Show Detail"}};
  forms::CommandButton cmdEmail{*this,
                                "cmdEmail",
                                {.place = {1815, 1740, 1215, 375},
                                 .text = "&Email",
                                 .toolTip = "Email error information to Ostrel.  Please"}};
  forms::CommandButton cmdOK{*this,
                             "cmdOK",
                             {.place = {5265, 1740, 1215, 375},
                              .text = "OK",
                              .toolTip = "Close",
                              .picture = forms::Picture::Ok,
                              .isDefault = true,
                              .isCancel = true}};
  // The detail stands last, so that nothing but room is missing without it.
  forms::TextBox txtErrorNumber{
      *this, "txtErrorNumber", {.place = {120, 2175, 6360, 300}, .locked = true}};
  forms::TextBox txtExtra{
      *this, "txtExtra", {.place = {120, 2535, 6360, 1785}, .multiLine = true, .locked = true}};

 private:
  void Form_Load() override;
  void cmdEmail_Click();

  std::shared_ptr<const platform::System> system_;
  std::int32_t fullHeight_ = 0;
};

}  // namespace rangewerks
