#include "errors/ErrorMessageBox.h"

#include <new>
#include <utility>

#include "automation/text.h"
#include "errors/frmErrMessage.h"
#include "errors/modErrorHandling.h"
#include "errors/procedure.h"

namespace rangewerks {

using automation::Error;
using automation::ErrorNumber;
using automation::MemberTable;

ErrorMessageBox::ErrorMessageBox(std::shared_ptr<forms::Toolkit> toolkit,
                                 std::shared_ptr<const platform::System> system)
    : toolkit_(std::move(toolkit)), system_(std::move(system)) {}

/// All that can fail in reading a text is the memory for the copy. That is told at once, and the
/// caller gets what there is: nothing.
std::string ErrorMessageBox::Read(const std::string& text, const char* procedure) const {
  try {
    return text;
  } catch (const std::bad_alloc&) {
    const Error failure(ErrorNumber::OutOfMemory);
    MsgBox(*toolkit_, "Error " + std::to_string(failure.Number()) + " (" + failure.Description() +
                          ") in procedure " + procedure + " of Class Module clsErrorMessageBox");
    return {};
  }
}

std::string ErrorMessageBox::get_ErrorMessage() const {
  return Read(errorMessage_, "ErrorMessage");
}

std::string ErrorMessageBox::get_ExtraMessage() const {
  return Read(extraMessage_, "ExtraMessage");
}

void ErrorMessageBox::DisplayErrMessage(const std::string& sSource) {
  const modErrorHandling::ErrorState& error = modErrorHandling::CurrentError();
  errorMessage_ = error.description;
  errorNumber_ = error.number;
  extraMessage_ = modErrorHandling::BuildErrorSource(sSource);
  DisplayMessage();
}

void ErrorMessageBox::DisplayMessage(std::int32_t lErrNumber, const std::string& sErrorMessage,
                                     const std::string& sExtraMessage) {
  Line at(__builtin_LINE());
  try {
    at();
    if (lErrNumber != 0) errorNumber_ = lErrNumber;
    if (!automation::IsBlank(sErrorMessage)) errorMessage_ = sErrorMessage;
    if (sExtraMessage != kKeepExtraMessage) extraMessage_ = sExtraMessage;
    at();
    auto& form = toolkit_->Shared<frmErrMessage>(system_);
    form.txtExtra.let_Text(extraMessage_);
    form.txtMainMessage.let_Text(errorMessage_);
    form.txtErrorNumber.let_Text("Error number: " + std::to_string(errorNumber_));
    at();
    form.Show(forms::Modality::Modal);
  } catch (const Error& error) {
    throw Error(error.Number(),
                "clsErrorMessageBox_DisplayMessageLine# " + std::to_string(at.Reached()),
                error.Description());
  }
}

const MemberTable& ErrorMessageBox::Members() const {
  using C = ErrorMessageBox;
  static const char* const kMessage = "The main text, normally an error's description.";
  static const char* const kNumber = "The error number.";
  static const char* const kExtra = "The detail text, normally an error's source.";
  static const MemberTable table =
      MemberTable::For<C>("ErrorMessageBox")
          .Get(1, "ErrorMessage", &C::get_ErrorMessage, kMessage)
          .Let(1, "ErrorMessage", &C::let_ErrorMessage, kMessage)
          .Get(2, "ErrorNumber", &C::get_ErrorNumber, kNumber)
          .Let(2, "ErrorNumber", &C::let_ErrorNumber, kNumber)
          .Get(3, "ExtraMessage", &C::get_ExtraMessage, kExtra)
          .Let(3, "ExtraMessage", &C::let_ExtraMessage, kExtra)
          .Method(4, "DisplayMessage", &C::DisplayMessage,
                  {{"lErrNumber", 0}, {"sErrorMessage", ""}, {"sExtraMessage", kKeepExtraMessage}},
                  "Shows the number, message and detail, those left out as they were last.")
          .Method(5, "DisplayErrMessage", &C::DisplayErrMessage, {{"sSource"}},
                  "Shows the error being handled, with a line added to its source.");
  return table;
}

}  // namespace rangewerks
