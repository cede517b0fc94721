#include "hosts/libreoffice/validation.h"

#include <algorithm>
#include <array>
#include <com/sun/star/sheet/ConditionOperator.hpp>
#include <com/sun/star/sheet/ValidationAlertStyle.hpp>
#include <com/sun/star/sheet/ValidationType.hpp>

#include "automation/conversions.h"
#include "automation/text.h"
#include "hosts/common/name_rules.h"
#include "hosts/common/validation_texts.h"
#include "hosts/libreoffice/cell_writing.h"
#include "hosts/libreoffice/failure.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using css::sheet::ConditionOperator;
using css::sheet::ValidationAlertStyle;
using css::sheet::ValidationType;
using css::sheet::XSheetCondition;

constexpr const char* kRule = "Validation";
constexpr const char* kType = "Type";
constexpr const char* kAlertStyle = "ErrorAlertStyle";
constexpr const char* kIgnoreBlank = "IgnoreBlankCells";

/// A number of the object model and the office's word for it.
template <class Office>
struct Pair {
  std::int32_t number;
  Office office;
};

constexpr std::array<Pair<ValidationType>, 8> kTypes{
    {{excel::xlValidateInputOnly, css::sheet::ValidationType_ANY},
     {excel::xlValidateWholeNumber, css::sheet::ValidationType_WHOLE},
     {excel::xlValidateDecimal, css::sheet::ValidationType_DECIMAL},
     {excel::xlValidateList, css::sheet::ValidationType_LIST},
     {4, css::sheet::ValidationType_DATE},
     {5, css::sheet::ValidationType_TIME},
     {excel::xlValidateTextLength, css::sheet::ValidationType_TEXT_LEN},
     {7, css::sheet::ValidationType_CUSTOM}}};
/// Types that a rule can be given here.
constexpr std::array<std::int32_t, 5> kTypesToAdd{
    excel::xlValidateInputOnly, excel::xlValidateWholeNumber, excel::xlValidateDecimal,
    excel::xlValidateList, excel::xlValidateTextLength};

constexpr std::array<Pair<ValidationAlertStyle>, 3> kAlertStyles{
    {{excel::xlValidAlertStop, css::sheet::ValidationAlertStyle_STOP},
     {2, css::sheet::ValidationAlertStyle_WARNING},
     {3, css::sheet::ValidationAlertStyle_INFO}}};

/// Without those that compare with two formulas.
constexpr std::array<Pair<ConditionOperator>, 6> kOperators{
    {{3, css::sheet::ConditionOperator_EQUAL},
     {4, css::sheet::ConditionOperator_NOT_EQUAL},
     {excel::xlGreater, css::sheet::ConditionOperator_GREATER},
     {6, css::sheet::ConditionOperator_LESS},
     {7, css::sheet::ConditionOperator_GREATER_EQUAL},
     {excel::xlLessEqual, css::sheet::ConditionOperator_LESS_EQUAL}}};

template <class Office, std::size_t size>
Office OfficeWord(const std::array<Pair<Office>, size>& pairs, std::int32_t number,
                  const char* what) {
  for (const auto& pair : pairs) {
    if (pair.number == number) return pair.office;
  }
  Fail(std::string("A validation can't have the ") + what + " " + std::to_string(number));
}

template <class Office, std::size_t size>
std::int32_t NumberOf(const std::array<Pair<Office>, size>& pairs, Office office,
                      const char* what) {
  for (const auto& pair : pairs) {
    if (pair.office == office) return pair.number;
  }
  Fail(std::string("The validation has another ") + what + " than the object model knows");
}

/// "Y,N" as the office keeps it: "Y";"N" with the quotes.
std::string NativeList(std::string_view elements) {
  std::string native;
  std::size_t start = 0;
  while (start <= elements.size()) {
    const std::size_t end = std::min(elements.find(',', start), elements.size());
    if (!native.empty()) native += ';';
    native += '"';
    for (const char c : automation::Trim(elements.substr(start, end - start))) {
      native += c;
      if (c == '"') native += c;
    }
    native += '"';
    start = end + 1;
  }
  return native;
}

/// The way back. What is no list of texts is a formula, which stays.
std::optional<std::string> ListOf(const std::string& native) {
  if (!native.starts_with('"')) return std::nullopt;
  std::string elements;
  bool isInside = false;
  for (std::size_t i = 0; i < native.size(); ++i) {
    if (native[i] != '"') {
      if (!isInside && native[i] != ';') return std::nullopt;
      elements += isInside ? native[i] : ',';
      continue;
    }
    const bool isDoubled = isInside && i + 1 < native.size() && native[i + 1] == '"';
    if (isDoubled) {
      elements += native[++i];
    } else {
      isInside = !isInside;
    }
  }
  return elements;
}

}  // namespace

// --- the rule as a whole -------------------------------------------------------------------------

void Validation::Add(std::int32_t type, const Variant& alertStyle, const Variant& comparison,
                     const Variant& formula) {
  const bool isKnown = std::find(kTypesToAdd.begin(), kTypesToAdd.end(), type) != kTypesToAdd.end();
  if (!isKnown) Refuse("A validation of the type " + std::to_string(type) + " can't be added");
  RequireWritable(OnSheet(), InArea());
  const CellProperties cells = PropertiesOf(OnSheet(), InArea());
  if (StateOf(cells, kRule) != css::beans::PropertyState_DEFAULT_VALUE) {
    Fail(Place() + " has a validation already");
  }
  const auto rule = Property<Rule>(cells, kRule);
  rule->setPropertyValue(ToUno(kType), Any(OfficeWord(kTypes, type, kType)));
  if (!alertStyle.IsMissing()) {
    rule->setPropertyValue(ToUno(kAlertStyle),
                           Any(OfficeWord(kAlertStyles, LongArgument(alertStyle), "AlertStyle")));
  }
  // The office shows nothing unless it is told to.
  rule->setPropertyValue(ToUno("ShowErrorMessage"), Any(true));
  rule->setPropertyValue(ToUno("ShowInputMessage"), Any(true));
  if (type != excel::xlValidateInputOnly) PutCondition(rule, type, comparison, formula);
  cells->setPropertyValue(ToUno(kRule), Any(rule));
}

void Validation::PutCondition(const Rule& rule, std::int32_t type, const Variant& comparison,
                              const Variant& formula1) const {
  const auto condition = As<XSheetCondition>(rule);
  if (type != excel::xlValidateList) {
    if (comparison.IsMissing()) Fail("A validation that compares needs an Operator");
    condition->setOperator(OfficeWord(kOperators, LongArgument(comparison), "Operator"));
  }
  condition->setSourcePosition(FirstCell());
  condition->setFormula1(ToUno(NativeFormula(type, formula1)));
}

std::string Validation::NativeFormula(std::int32_t type, const Variant& formula1) const {
  const automation::Locale english;
  std::string text = formula1.IsMissing() ? "" : ToString(formula1, english);
  if (text.starts_with('=')) {
    Formulas& formulas = Cells().book->FormulaTexts();
    return formulas.WriteNative(formulas.Read(text.substr(1), FirstCell()), FirstCell());
  }
  if (type == excel::xlValidateList && !text.empty()) return NativeList(text);
  if (!IsNumeric(text, english)) Fail("\"" + text + "\" is nothing to compare an entry with");
  return text;
}

void Validation::Delete() {
  RequireWritable(OnSheet(), InArea());
  As<css::beans::XPropertyState>(OnSheet().Block(InArea()))->setPropertyToDefault(ToUno(kRule));
}

Validation::Rule Validation::Required() const {
  return RequiredOf(PropertiesOf(OnSheet(), InArea()));
}

Validation::Rule Validation::RequiredOf(const CellProperties& cells) const {
  switch (StateOf(cells, kRule)) {
    case css::beans::PropertyState_DEFAULT_VALUE:
      Fail(Place() + " has no validation");
    case css::beans::PropertyState_AMBIGUOUS_VALUE:
      Fail("The cells of " + Place() + " have different validations");
    default:
      return Property<Rule>(cells, kRule);
  }
}

css::table::CellAddress Validation::FirstCell() const {
  return {OnSheet().Index(), InArea().column - 1, InArea().row - 1};
}

std::string Validation::Place() const { return PlaceOf(OnSheet().Name(), InArea()); }

// --- its parts -----------------------------------------------------------------------------------

void Validation::PutProperty(const char* property, const Any& value) {
  RequireWritable(OnSheet(), InArea());
  const CellProperties cells = PropertiesOf(OnSheet(), InArea());
  const Rule rule = RequiredOf(cells);
  rule->setPropertyValue(ToUno(property), value);
  cells->setPropertyValue(ToUno(kRule), Any(rule));
}

std::string Validation::Text(std::size_t text) const {
  return ToUtf8(Property<OUString>(Required(), kValidationTexts.at(text).member));
}

void Validation::PutText(std::size_t text, const std::string& value) {
  PutProperty(kValidationTexts.at(text).member, Any(ToUno(value)));
}

Variant Validation::GetIgnoreBlank() const { return Property<bool>(Required(), kIgnoreBlank); }
void Validation::LetIgnoreBlank(bool ignores) { PutProperty(kIgnoreBlank, Any(ignores)); }

Variant Validation::GetType() const {
  return NumberOf(kTypes, Property<ValidationType>(Required(), kType), "type");
}

Variant Validation::GetAlertStyle() const {
  return NumberOf(kAlertStyles, Property<ValidationAlertStyle>(Required(), kAlertStyle),
                  "alert style");
}

Variant Validation::GetOperator() const {
  return NumberOf(kOperators, As<XSheetCondition>(Required())->getOperator(), "operator");
}

Variant Validation::GetFormula1() const {
  std::string native = ToUtf8(As<XSheetCondition>(Required())->getFormula1());
  if (const auto elements = ListOf(native)) return *elements;
  const automation::Locale english;
  if (native.empty() || IsNumeric(native, english)) return native;
  Formulas& formulas = Cells().book->FormulaTexts();
  return "=" + formulas.Write(formulas.ReadNative(native, FirstCell()), FirstCell());
}

}  // namespace rangewerks::hosts::libreoffice
