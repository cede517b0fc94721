#include "forms/toolkit.h"

#include "automation/error.h"
#include "forms/form.h"

namespace rangewerks::forms {

Toolkit::Toolkit() = default;
Toolkit::~Toolkit() = default;

Answer DefaultAnswer(std::int32_t flags) {
  constexpr std::int32_t kButtons = 15;
  const bool second = (flags & Message::kSecondButton) != 0;
  switch (flags & kButtons) {
    case Message::kOkCancel:
      return second ? Answer::Cancel : Answer::Ok;
    case Message::kYesNo:
    case Message::kYesNoCancel:
      return second ? Answer::No : Answer::Yes;
    default:
      return Answer::Ok;
  }
}

void Toolkit::ReportUnhandled(const std::exception& failure, Form* owner) {
  std::string text = failure.what();
  if (const auto* error = dynamic_cast<const automation::Error*>(&failure)) {
    text = "Run-time error '" + std::to_string(error->Number()) + "':\r\n\r\n" + text;
  }
  ShowMessage({.text = std::move(text), .flags = Message::kCritical}, owner);
}

void Toolkit::DropSharedForms() {
  while (!shared_.empty()) {
    const std::shared_ptr<Form> form = std::move(shared_.begin()->second);
    shared_.erase(shared_.begin());
    if (form) form->DropWindow();
  }
}

Answer MsgBox(Toolkit& toolkit, const std::string& text, std::int32_t flags,
              const std::string& title) {
  return toolkit.ShowMessage({.text = text, .flags = flags, .title = title}, nullptr);
}

}  // namespace rangewerks::forms
