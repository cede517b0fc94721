#include "hosts/workbook/conditional_format.h"

#include "automation/text.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {

ConditionalFormatPointer ConditionalFormatList::Add(const std::string& formula) {
  auto format = std::make_shared<ConditionalFormat>();
  if (!formula.starts_with('=') || automation::IsBlank(formula.substr(1))) {
    Refuse(R"(A condition is a formula that begins with "=", not ")" + formula + "\"");
  }
  format->formula = formula;
  formats_.push_back(format);
  return format;
}

std::vector<ConditionalFormatPointer> ConditionalFormatList::Of(const Area& area) const {
  std::vector<ConditionalFormatPointer> found;
  for (const auto& format : formats_) {
    if (format->cells.Any(area)) found.push_back(format);
  }
  return found;
}

void ConditionalFormatList::Remove(const Area& area, const ConditionalFormatPointer& format) {
  format->cells.Set(area, false);
  if (format->cells.IsEmpty()) std::erase(formats_, format);
}

void ConditionalFormatList::RemoveAll(const Area& area) {
  for (const auto& format : Of(area)) Remove(area, format);
}

void RequireThere(const ConditionalFormat& format) {
  if (format.cells.IsEmpty()) {
    Refuse("The conditional format " + format.formula + " has been deleted");
  }
}

}  // namespace rangewerks::hosts::workbook
