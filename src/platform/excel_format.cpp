#include "platform/excel_format.h"

#include "automation/dispatch.h"
#include "platform/typed_call.h"

namespace rangewerks::excel {
namespace {

using automation::Argument;
using automation::Member;

const Member kAdd{"Add"};
const Member kBold{"Bold"};
const Member kColor{"Color"};
const Member kColorIndex{"ColorIndex"};
const Member kCount{"Count"};
const Member kDelete{"Delete"};
const Member kErrorMessage{"ErrorMessage"};
const Member kErrorTitle{"ErrorTitle"};
const Member kFormula1{"Formula1"};
const Member kIgnoreBlank{"IgnoreBlank"};
const Member kInputMessage{"InputMessage"};
const Member kInputTitle{"InputTitle"};
const Member kInterior{"Interior"};
const Member kLineStyle{"LineStyle"};
const Member kType{"Type"};
const Member kWeight{"Weight"};

/// A constant as the host takes it.
template <class Constant>
Variant Number(Constant constant) {
  return static_cast<std::int32_t>(constant);
}

}  // namespace

void Interior::let_Color(std::int32_t color) const { Let(kColor, color); }
Variant Interior::get_ColorIndex() const { return Get(kColorIndex); }
void Interior::let_ColorIndex(std::int32_t index) const { Let(kColorIndex, index); }

void Font::let_Bold(bool isBold) const { Let(kBold, isBold); }

void Border::let_LineStyle(LineStyle style) const { Let(kLineStyle, Number(style)); }
void Border::let_Weight(BorderWeight weight) const { Let(kWeight, Number(weight)); }

void Validation::Add(ValidationType type, ValidationAlertStyle alertStyle,
                     std::optional<ValidationOperator> comparison, const Variant& formula1) const {
  const Argument given = comparison ? Argument(Number(*comparison)) : Argument::Omitted();
  Call(kAdd, {Number(type), Number(alertStyle), given, formula1});
}
void Validation::Add(ValidationType type) const { Call(kAdd, {Number(type)}); }
void Validation::Delete() const { Call(kDelete); }
void Validation::let_IgnoreBlank(bool ignores) const { Let(kIgnoreBlank, ignores); }
void Validation::let_ErrorTitle(const std::string& text) const { Let(kErrorTitle, text); }
void Validation::let_ErrorMessage(const std::string& text) const { Let(kErrorMessage, text); }
void Validation::let_InputTitle(const std::string& text) const { Let(kInputTitle, text); }
void Validation::let_InputMessage(const std::string& text) const { Let(kInputMessage, text); }

Interior FormatCondition::get_Interior() const { return Typed<Interior>(Get(kInterior)); }

FormatCondition FormatConditions::Add(FormatConditionType type, const std::string& formula1) const {
  return Typed<FormatCondition>(Call(kAdd, {}, {{kType, Number(type)}, {kFormula1, formula1}}));
}
std::int32_t FormatConditions::get_Count() const { return Long(Get(kCount)); }
void FormatConditions::Delete() const { Call(kDelete); }

}  // namespace rangewerks::excel
