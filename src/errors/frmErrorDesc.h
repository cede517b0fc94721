// Asks the person for what support needs to know, and mails it with the failure.
#pragma once

#include <memory>
#include <string>

#include "automation/object.h"
#include "forms/form.h"
#include "forms/simple_controls.h"
#include "platform/system.h"

namespace rangewerks {

/// A new instance for each use; the three texts are given before it is shown.
class frmErrorDesc final : public forms::Form {
 public:
  /// Where the mails go.
  static constexpr const char* kSupportAddress = "support@rangewerks.example";

  /// `system` starts the mail program.
  frmErrorDesc(forms::Toolkit& toolkit, std::shared_ptr<const platform::System> system);

  const std::string& get_ErrorNumberText() const { return errorNumberText_; }
  void let_ErrorNumberText(const std::string& value) { errorNumberText_ = value; }
  const std::string& get_ExtraMessageText() const { return extraMessageText_; }
  void let_ExtraMessageText(const std::string& value) { extraMessageText_ = value; }
  const std::string& get_ErrorMessageText() const { return errorMessageText_; }
  void let_ErrorMessageText(const std::string& value) { errorMessageText_ = value; }

  forms::Label lbProblemDetails{
      *this,
      "lbProblemDetails",
      {.place = {120, 120, 5760, 420},
       .text = "Please enter some details of what you were doing when this error appeared:"}};
  forms::TextBox txtProblemDetails{
      *this, "txtProblemDetails", {.place = {120, 570, 5760, 1800}, .multiLine = true}};
  forms::Label lblName{*this, "lblName", {.place = {120, 2535, 1920, 240}, .text = "Your name:"}};
  forms::TextBox txtYourName{*this, "txtYourName", {.place = {2160, 2490, 3720, 300}}};
  forms::Label lblYourPhone{
      *this, "lblYourPhone", {.place = {120, 2925, 1920, 240}, .text = "Your phone number:"}};
  forms::TextBox txtYourPhone{*this, "txtYourPhone", {.place = {2160, 2880, 3720, 300}}};
  forms::CommandButton cmdSend{
      *this, "cmdSend", {.place = {3330, 3330, 1215, 375}, .text = "Send", .isDefault = true}};
  forms::CommandButton cmdCancel{
      *this, "cmdCancel", {.place = {4665, 3330, 1215, 375}, .text = "Cancel", .isCancel = true}};

 private:
  void cmdSend_Click();
  void SendMail();
  std::string MailBody() const;

  std::shared_ptr<const platform::System> system_;
  std::string errorNumberText_;
  std::string extraMessageText_;
  std::string errorMessageText_;
};

}  // namespace rangewerks
