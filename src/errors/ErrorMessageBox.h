// Shows a failure to the person: what went wrong, and on demand the number and the way that the
// failure took, which can be mailed to support.
//
//   ErrorMessageBox box(toolkit, system);
//   box.DisplayMessage(1004, "The sheet is protected");
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "automation/member_table.h"
#include "forms/toolkit.h"
#include "platform/system.h"

namespace rangewerks {

/// A global object of the library. Its three texts keep their values between the showings.
class ErrorMessageBox final : public automation::AutomationClass {
 public:
  /// `system` starts the mail program.
  ErrorMessageBox(std::shared_ptr<forms::Toolkit> toolkit,
                  std::shared_ptr<const platform::System> system);

  const automation::MemberTable& Members() const override;

  /// The main text, normally an error's description.
  std::string get_ErrorMessage() const;
  void let_ErrorMessage(const std::string& value) { errorMessage_ = value; }
  std::int32_t get_ErrorNumber() const { return errorNumber_; }
  void let_ErrorNumber(std::int32_t value) { errorNumber_ = value; }
  /// The detail text, normally an error's source.
  std::string get_ExtraMessage() const;
  void let_ExtraMessage(const std::string& value) { extraMessage_ = value; }

  /// Shows the three texts and returns when the person has closed the box. A number other than 0, a
  /// message that isn't blank and an extra message other than "-" take their places first; an empty
  /// extra message does, too. A failure is raised again with the source
  /// "clsErrorMessageBox_DisplayMessageLine# " and the line.
  void DisplayMessage(std::int32_t lErrNumber = 0, const std::string& sErrorMessage = {},
                      const std::string& sExtraMessage = kKeepExtraMessage);
  /// Shows the current error (modErrorHandling), with `sSource` added to its source.
  void DisplayErrMessage(const std::string& sSource);

  /// The extra message that stands for the one that is there.
  static constexpr const char* kKeepExtraMessage = "-";

 private:
  std::string Read(const std::string& text, const char* procedure) const;

  std::shared_ptr<forms::Toolkit> toolkit_;
  std::shared_ptr<const platform::System> system_;
  std::string errorMessage_;
  std::string extraMessage_;
  std::int32_t errorNumber_ = 0;
};

}  // namespace rangewerks
