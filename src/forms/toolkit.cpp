#include "forms/toolkit.h"

#include <algorithm>

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

std::shared_ptr<Form> Toolkit::LetGoOf(const Form& form) {
  const auto kept = std::find_if(loaded_.begin(), loaded_.end(),
                                 [&](const auto& held) { return held.get() == &form; });
  if (kept == loaded_.end()) return nullptr;
  std::shared_ptr<Form> held = std::move(*kept);
  loaded_.erase(kept);
  return held;
}

void Toolkit::DropForms() {
  while (!loaded_.empty()) {
    const std::shared_ptr<Form> form = loaded_.back();
    form->DropWindow();  // and it is let go of
  }
  shared_.clear();
}

Answer MsgBox(Toolkit& toolkit, const std::string& text, std::int32_t flags,
              const std::string& title) {
  return toolkit.ShowMessage({.text = text, .flags = flags, .title = title}, nullptr);
}

}  // namespace rangewerks::forms
