#include "hosts/workbook/format_conditions.h"

#include "hosts/common/local_formula.h"
#include "hosts/workbook/interior.h"

namespace rangewerks::hosts::workbook {

Variant FormatConditions::GetItem(std::int32_t index) const {
  const auto slot = objects::SlotIn(
      sheet_->conditionalFormats.Of(area_), index, [this](const ConditionalFormatPointer& format) {
        return std::make_shared<FormatCondition>(Shared(), sheet_, area_, format);
      });
  if (!slot.element) {
    RefuseElement(Place() + " has " + std::to_string(slot.count) +
                  " conditional formats; there is none with the number " + std::to_string(index));
  }
  return Object(slot.element);
}

Variant FormatConditions::AddFormula(const std::string& formula) {
  const automation::Locale& locale = Shared()->international.CurrentLocale();
  if (!EnglishFormula(formula, locale)) {
    Refuse("The formula " + formula + " can't be read where \"" + locale.listSeparator +
           "\" separates arguments");
  }
  const auto format = sheet_->conditionalFormats.Add(formula);
  format->cells.Set(area_, true);
  return std::make_shared<FormatCondition>(Shared(), sheet_, area_, format);
}

std::int32_t FormatConditions::Count() const {
  return static_cast<std::int32_t>(sheet_->conditionalFormats.Of(area_).size());
}

void FormatCondition::RequireAlive() const {
  CellsObject::RequireAlive();
  RequireThere(*format_);
}

Variant FormatCondition::GetInterior() {
  return std::make_shared<ConditionFill>(Shared(), sheet_, area_, format_);
}

}  // namespace rangewerks::hosts::workbook
