#include "hosts/common/validation_texts.h"

#include "automation/text.h"

namespace rangewerks::hosts {

std::string FaultOfText(const ValidationText& text, const std::string& value) {
  if (automation::Length(value) <= text.longest) return {};
  return std::string("The ") + text.member + " of a validation can't have more than " +
         std::to_string(text.longest) + " characters";
}

}  // namespace rangewerks::hosts
